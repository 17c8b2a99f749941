#include "Tutorial/WindowPlatform.h"

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QVector>
#include <QWidget>
#include <QWindow>

#include <qpa/qplatformnativeinterface.h>

#include <xcb/shape.h>
#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace
{
template <typename T>
using Reply = std::unique_ptr<T, decltype(&std::free)>;

template <typename T>
Reply<T> owned(T *reply)
{
    return { reply, &std::free };
}

/// Null on every platform but X11, the offscreen one of the tests among them.
xcb_connection_t *connection()
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        return nullptr;
    QPlatformNativeInterface *native = QGuiApplication::platformNativeInterface();
    return static_cast<xcb_connection_t *>(native->nativeResourceForIntegration(QByteArrayLiteral("connection")));
}

/// A frame can go at any time, so errors of a window that is no more are nobody's concern.
void ignoreErrors(xcb_connection_t *xcb, xcb_void_cookie_t cookie)
{
    xcb_discard_reply(xcb, cookie.sequence);
}

void clearInputShape(xcb_connection_t *xcb, xcb_window_t window)
{
    ignoreErrors(xcb,
                 xcb_shape_rectangles_checked(xcb, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT, XCB_CLIP_ORDERING_UNSORTED,
                                              window, 0, 0, 0, nullptr));
}

/// The windows that a window manager has put between a window's parent and the root, the parent first.
QVector<xcb_window_t> framesFrom(xcb_connection_t *xcb, xcb_window_t parent)
{
    QVector<xcb_window_t> frames;
    while (const auto tree = owned(xcb_query_tree_reply(xcb, xcb_query_tree(xcb, parent), nullptr))) {
        if (parent == tree->root)
            break;
        frames.append(parent);
        parent = tree->parent;
    }
    return frames;
}

/// Keeps the input shapes of a window and of its frames empty for the window's life. Window managers
/// put a window in a new frame each time it is shown, and some give the frame a shape of its own again.
class InputPassage : public QObject, public QAbstractNativeEventFilter
{
public:
    InputPassage(QWidget *window, xcb_connection_t *xcb)
        : QObject(window)
        , mXcb(xcb)
        , mWindow(xcb_window_t(window->winId()))
    {
        const xcb_query_extension_reply_t *shape = xcb_get_extension_data(xcb, &xcb_shape_id);
        if (!shape || !shape->present)
            return;
        mShapeNotify = shape->first_event + XCB_SHAPE_NOTIFY;
        clearInputShape(mXcb, mWindow);
        QCoreApplication::instance()->installNativeEventFilter(this);
    }

    bool nativeEventFilter(const QByteArray &, void *message, long *) override
    {
        const auto *event = static_cast<const xcb_generic_event_t *>(message);
        const int type = event->response_type & ~0x80;
        if (type == XCB_REPARENT_NOTIFY)
            onReparented(*static_cast<const xcb_reparent_notify_event_t *>(message));
        else if (type == mShapeNotify)
            onShaped(*static_cast<const xcb_shape_notify_event_t *>(message));
        return false;
    }

private:
    void onReparented(const xcb_reparent_notify_event_t &event)
    {
        if (event.window != mWindow)
            return;
        mFrames = framesFrom(mXcb, event.parent);
        for (const xcb_window_t frame : qAsConst(mFrames)) {
            ignoreErrors(mXcb, xcb_shape_select_input_checked(mXcb, frame, true));
            clearInputShape(mXcb, frame);
        }
        xcb_flush(mXcb);
    }

    void onShaped(const xcb_shape_notify_event_t &event)
    {
        if (event.shape_kind != XCB_SHAPE_SK_INPUT || !mFrames.contains(event.affected_window))
            return;
        const bool isEmpty = event.shaped && (event.extents_width == 0 || event.extents_height == 0);
        if (isEmpty)
            return;
        clearInputShape(mXcb, event.affected_window);
        xcb_flush(mXcb);
    }

    xcb_connection_t *mXcb;
    xcb_window_t mWindow;
    int mShapeNotify = 0;
    QVector<xcb_window_t> mFrames;
};

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
} // namespace

namespace WindowPlatform
{
void letInputThrough(QWidget *window)
{
    if (xcb_connection_t *xcb = connection())
        new InputPassage(window, xcb);
}

void refuseFocus(QWidget *window)
{
    xcb_connection_t *xcb = connection();
    if (!xcb)
        return;
    const auto id = xcb_window_t(window->winId());

    // Only the platform's window has the flag: the widget's own flags stay as they were asked for.
    window->windowHandle()->setFlag(Qt::WindowDoesNotAcceptFocus);

    // A window that understands WM_TAKE_FOCUS is offered the focus in spite of its hints.
    const xcb_atom_t protocols = atom(xcb, QByteArrayLiteral("WM_PROTOCOLS"));
    QVector<xcb_atom_t> supported = atoms(xcb, id, protocols);
    supported.removeAll(atom(xcb, QByteArrayLiteral("WM_TAKE_FOCUS")));
    xcb_change_property(xcb, XCB_PROP_MODE_REPLACE, id, protocols, XCB_ATOM_ATOM, 32, quint32(supported.size()),
                        supported.constData());
}

void flush()
{
    if (xcb_connection_t *xcb = connection())
        xcb_flush(xcb);
}
} // namespace WindowPlatform
