#include "Tutorial/guidance/X11.h"

#include <QGuiApplication>

#include <qpa/qplatformnativeinterface.h>

namespace X11
{
xcb_connection_t *connection()
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        return nullptr;
    QPlatformNativeInterface *native = QGuiApplication::platformNativeInterface();
    return static_cast<xcb_connection_t *>(native->nativeResourceForIntegration(QByteArrayLiteral("connection")));
}

void ignoreErrors(xcb_connection_t *xcb, xcb_void_cookie_t cookie)
{
    xcb_discard_reply(xcb, cookie.sequence);
}

xcb_atom_t atom(xcb_connection_t *xcb, const QByteArray &name)
{
    const auto cookie = xcb_intern_atom(xcb, false, quint16(name.size()), name.constData());
    const auto reply = owned(xcb_intern_atom_reply(xcb, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

QVector<xcb_atom_t> atoms(xcb_connection_t *xcb, xcb_window_t window, xcb_atom_t property)
{
    const auto cookie = xcb_get_property(xcb, false, window, property, XCB_ATOM_ATOM, 0, 64);
    const auto reply = owned(xcb_get_property_reply(xcb, cookie, nullptr));
    if (!reply || reply->format != 32)
        return {};
    const auto *values = static_cast<const xcb_atom_t *>(xcb_get_property_value(reply.get()));
    QVector<xcb_atom_t> result;
    for (int i = 0; i < xcb_get_property_value_length(reply.get()) / 4; ++i)
        result.append(values[i]);
    return result;
}
} // namespace X11
