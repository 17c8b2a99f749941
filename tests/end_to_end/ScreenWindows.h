#pragma once

#include <QPoint>
#include <QWidget>

/// What the X server says of any process's window, past the toolkit.
namespace ScreenWindows
{
/// The window manager's word that the window is kept above the others.
bool isKeptAbove(WId window);

/// The place among the windows of the screen from the bottom up, menus included; -1 while unseen.
int stackingPlace(WId window);

/// Whether there is a window manager.
bool areManaged();

/// The upper left corner on the screen.
QPoint place(WId window);
} // namespace ScreenWindows
