#pragma once

class QWidget;

/// What the window system needs beyond Qt's window flags, so that the guidance floats over another
/// program's windows without being in the way. Each call does nothing where it isn't needed.
namespace WindowPlatform
{
/// Makes all input of a top-level window go to the windows beneath it, also while a window manager
/// keeps the window in a frame of its own. Call it once, before the window is first shown.
void letInputThrough(QWidget *window);

/// Makes the window manager never give the keyboard to a top-level window: neither when it is shown,
/// nor on a click, nor when another window goes. Call it once, before the window is first shown.
void refuseFocus(QWidget *window);

/// Keeps a top-level window that stays on top there, however often it is hidden and shown. Call it
/// once, before the window is first shown. An open menu still covers it.
void keepAbove(QWidget *window);

/// Whether translucent windows show what is below them.
bool isComposed();

/// Sends what a timer has changed of a window at once, instead of with the next event.
void flush();
} // namespace WindowPlatform
