#pragma once

class QSize;
class QWidget;

/// What the windows have in common that lie over the host editor and only show something.
namespace OverlayWindow
{
/// Makes a window without parent a translucent, frameless one that stays on top, lets all input
/// through to what lies below and takes no focus. Called before it is shown for the first time, it
/// gives the window a size at the screen's origin.
void setUp(QWidget *window, const QSize &size);
} // namespace OverlayWindow
