#include "Tutorial/guidance/DesktopSettings.h"

#include "Tutorial/guidance/X11.h"
#include "Tutorial/guidance/XSettings.h"

using namespace X11;

namespace
{
const quint32 kMostWords = 1 << 16;

/// What the settings manager of the first screen says; empty without one.
QByteArray managedSettings()
{
    xcb_connection_t *xcb = connection();
    if (!xcb)
        return {};
    static const xcb_atom_t selection = atom(xcb, QByteArrayLiteral("_XSETTINGS_S0"));
    const auto owner = owned(xcb_get_selection_owner_reply(xcb, xcb_get_selection_owner(xcb, selection), nullptr));
    if (!owner || owner->owner == XCB_WINDOW_NONE)
        return {};
    static const xcb_atom_t property = atom(xcb, QByteArrayLiteral("_XSETTINGS_SETTINGS"));
    const auto cookie = xcb_get_property(xcb, false, owner->owner, property, property, 0, kMostWords);
    const auto reply = owned(xcb_get_property_reply(xcb, cookie, nullptr));
    if (!reply || reply->format != 8)
        return {};
    return { static_cast<const char *>(xcb_get_property_value(reply.get())),
             xcb_get_property_value_length(reply.get()) };
}

QPalette twoColours(const QColor &text, const QColor &base, const QColor &highlight)
{
    QPalette palette;
    for (const auto role : { QPalette::Base, QPalette::AlternateBase, QPalette::Button, QPalette::WindowText,
                             QPalette::HighlightedText, QPalette::ToolTipBase })
        palette.setColor(role, base);
    // The windows are transparent: their colour is that of the frames, which keep two windows of one ground apart.
    for (const auto role : { QPalette::Text, QPalette::ButtonText, QPalette::BrightText, QPalette::Window,
                             QPalette::Light, QPalette::Mid, QPalette::Dark, QPalette::ToolTipText })
        palette.setColor(role, text);
    palette.setColor(QPalette::Highlight, highlight);
    return palette;
}

// The desktops know high contrast by the names of themes, which only some of the toolkit's plugins can read.
QPalette coloursOf(const QByteArray &theme)
{
    if (theme == "HighContrastInverse")
        return twoColours(Qt::white, Qt::black, Qt::yellow);
    if (theme == "HighContrast")
        return twoColours(Qt::black, Qt::white, Qt::darkBlue);
    return {};
}
} // namespace

DesktopSettings DesktopSettings::read()
{
    const QByteArray settings = managedSettings();
    const QVariant animated = XSettings::value(settings, QByteArrayLiteral("Gtk/EnableAnimations"));
    DesktopSettings result;
    result.reducedMotion = animated.isValid() && animated.toInt() == 0;
    result.highContrast = coloursOf(XSettings::value(settings, QByteArrayLiteral("Net/ThemeName")).toByteArray());
    return result;
}
