#include "Tutorial/guidance/PlacementTries.h"

#include <QWidget>
#include <QWindow>

void PlacementTries::begin()
{
    mSettled = false;
    mLeft = kTries;
}

bool PlacementTries::isDue(const QWidget *window)
{
    const QWindow *handle = window && window->isVisible() ? window->windowHandle() : nullptr;
    const QScreen *screen = handle ? handle->screen() : nullptr;
    if (screen != mScreen) {
        mScreen = screen;
        mLeft = kTries;
    }
    return !mSettled && mLeft > 0;
}

void PlacementTries::tried(bool settled)
{
    mSettled = settled;
    --mLeft;
}
