#include "Tutorial/guidance/StackingKeeper.h"

#include "Tutorial/guidance/X11.h"

#include <QCoreApplication>
#include <QWidget>

using namespace X11;

namespace
{
// A window manager may refuse, and write the states anew each time it does.
const int kMostRequests = 3;
} // namespace

StackingKeeper::StackingKeeper(QWidget *window, xcb_connection_t *xcb)
    : QObject(window)
    , mXcb(xcb)
    , mWindow(xcb_window_t(window->winId()))
    , mRoot(XCB_WINDOW_NONE)
    , mStates(atom(xcb, QByteArrayLiteral("_NET_WM_STATE")))
    , mAbove(atom(xcb, QByteArrayLiteral("_NET_WM_STATE_ABOVE")))
{
    if (const auto tree = owned(xcb_query_tree_reply(xcb, xcb_query_tree(xcb, mWindow), nullptr)))
        mRoot = tree->root;
    QCoreApplication::instance()->installNativeEventFilter(this);
}

bool StackingKeeper::nativeEventFilter(const QByteArray &, void *message, long *)
{
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    switch (event->response_type & ~0x80) {
    case XCB_MAP_NOTIFY:
        if (reinterpret_cast<const xcb_map_notify_event_t *>(event)->window != mWindow)
            break;
        mIsMapped = true;
        mRequests = 0;
        keepAbove();
        break;
    case XCB_UNMAP_NOTIFY:
        if (reinterpret_cast<const xcb_unmap_notify_event_t *>(event)->window == mWindow)
            mIsMapped = false;
        break;
    case XCB_PROPERTY_NOTIFY: {
        const auto *property = reinterpret_cast<const xcb_property_notify_event_t *>(event);
        if (property->window == mWindow && property->atom == mStates && mIsMapped)
            keepAbove();
        break;
    }
    default:
        break;
    }
    return false;
}

void StackingKeeper::keepAbove()
{
    if (!atoms(mXcb, mWindow, mStates).contains(mAbove) && mRequests++ < kMostRequests)
        askForState();
}

void StackingKeeper::askForState()
{
    const quint32 kAdd = 1;
    const quint32 kFromApplication = 1;
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = mWindow;
    message.type = mStates;
    message.data.data32[0] = kAdd;
    message.data.data32[1] = mAbove;
    message.data.data32[3] = kFromApplication;
    ignoreErrors(mXcb,
                 xcb_send_event_checked(mXcb, false, mRoot,
                                        XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                                        reinterpret_cast<const char *>(&message)));
    xcb_flush(mXcb);
}
