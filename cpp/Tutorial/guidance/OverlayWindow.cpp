#include "Tutorial/guidance/OverlayWindow.h"

#include "Tutorial/guidance/WindowPlatform.h"

#include <QWidget>

void OverlayWindow::setUp(QWidget *window, const QSize &size)
{
    window->setAttribute(Qt::WA_TranslucentBackground);
    window->setAttribute(Qt::WA_ShowWithoutActivating);
    window->setWindowFlags(Qt::NoDropShadowWindowHint | Qt::WindowTransparentForInput | Qt::WindowStaysOnTopHint
                           | Qt::FramelessWindowHint | Qt::Tool);
    // The calls below make the native window, which without a place comes to stand where the window
    // manager likes, and one that is placed later jumps.
    window->setGeometry(QRect(QPoint(0, 0), size));
    // Else it can lose its size on the way to a screen of another scale.
    window->setFixedSize(size);
    WindowPlatform::letInputThrough(window);
    WindowPlatform::refuseFocus(window);
    WindowPlatform::keepAbove(window);
}
