#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

#include <xcb/xcb.h>

class QWidget;

/// Keeps a window of X11 above the others, for the window's life.
///
/// A window manager takes the states of a window away when it is hidden, and may do so only after it
/// was shown again. So the state is asked for once more whenever the window is on the screen without
/// it.
class StackingKeeper : public QObject, public QAbstractNativeEventFilter
{
public:
    StackingKeeper(QWidget *window, xcb_connection_t *xcb);

    bool nativeEventFilter(const QByteArray &eventType, void *message, long *result) override;

private:
    Q_DISABLE_COPY(StackingKeeper)

    void keepAbove();
    void askForState();

    xcb_connection_t *mXcb;
    xcb_window_t mWindow;
    xcb_window_t mRoot;
    xcb_atom_t mStates;
    xcb_atom_t mAbove;
    bool mIsMapped = false;
    int mRequests = 0;
};
