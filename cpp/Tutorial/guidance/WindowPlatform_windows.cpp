#include "Tutorial/guidance/WindowPlatform.h"

#include <QWidget>
#include <QWindow>

// Qt's window flags say all else that Windows needs.
namespace WindowPlatform
{
void letInputThrough(QWidget *) { }

void refuseFocus(QWidget *window)
{
    window->winId();
    // Only the platform's window has the flag: the widget's own flags stay as they were asked for. Without it a click
    // would take the keys from the host editor, and close its menu.
    window->windowHandle()->setFlag(Qt::WindowDoesNotAcceptFocus);
}

void keepAbove(QWidget *) { }

bool isComposed()
{
    return true;
}

void flush() { }
} // namespace WindowPlatform
