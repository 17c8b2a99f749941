#include "Tutorial/OverlayWindow.h"

#include "Tutorial/WindowPlatform.h"

#include <QWidget>

void OverlayWindow::setUp(QWidget *window)
{
    window->setAttribute(Qt::WA_TranslucentBackground);
    window->setAttribute(Qt::WA_ShowWithoutActivating);
    window->setWindowFlags(Qt::NoDropShadowWindowHint | Qt::WindowTransparentForInput | Qt::WindowStaysOnTopHint
                           | Qt::FramelessWindowHint | Qt::Tool);
    WindowPlatform::letInputThrough(window);
    WindowPlatform::refuseFocus(window);
}
