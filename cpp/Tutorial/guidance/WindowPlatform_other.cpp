#include "Tutorial/guidance/WindowPlatform.h"

// Qt's window flags say all that these window systems need.
namespace WindowPlatform
{
void letInputThrough(QWidget *) { }

void refuseFocus(QWidget *) { }

void keepAbove(QWidget *) { }

bool isComposed()
{
    return true;
}

void flush() { }
} // namespace WindowPlatform
