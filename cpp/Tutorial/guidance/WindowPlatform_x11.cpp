#include "Tutorial/guidance/WindowPlatform.h"

#include "Tutorial/guidance/StackingKeeper.h"
#include "Tutorial/guidance/X11.h"

#include <QAbstractNativeEventFilter>
#include <QGuiApplication>
#include <QVector>
#include <QWidget>
#include <QWindow>

#include <qpa/qplatformnativeinterface.h>

#include <xcb/shape.h>

using namespace X11;

namespace
{
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

void keepAbove(QWidget *window)
{
    if (xcb_connection_t *xcb = connection())
        new StackingKeeper(window, xcb);
}

bool isComposed()
{
    if (!connection())
        return true;
    // The platform's plugin follows the compositors that come and go.
    return QGuiApplication::platformNativeInterface()->nativeResourceForScreen(QByteArrayLiteral("compositingEnabled"),
                                                                               QGuiApplication::primaryScreen());
}

void flush()
{
    if (xcb_connection_t *xcb = connection())
        xcb_flush(xcb);
}
} // namespace WindowPlatform
