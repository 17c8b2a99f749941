#include "Tutorial/guidance/GuidanceVisibility.h"

#include <QScopedValueRollback>

GuidanceVisibility::Stage::~Stage() = default;

GuidanceVisibility::GuidanceVisibility(Stage *stage) : mStage(stage) { }

void GuidanceVisibility::start()
{
    if (mGuidanceRunning)
        return;
    mGuidanceRunning = true;
    mStage->begin();
}

void GuidanceVisibility::stop()
{
    if (!mGuidanceRunning)
        return;
    mGuidanceRunning = false;
    mStage->setGuidanceVisible(false);
}

void GuidanceVisibility::hostShown()
{
    // Hidden and shown again, the windows come to stand above the host editor's.
    {
        const QScopedValueRollback<bool> ordering(mOrdering, true);
        mStage->setGuidanceVisible(false);
    }
    mShowDelayTicks = 1;
    mHostHidden = false;
    update();
}

void GuidanceVisibility::hostHidden()
{
    mHostHidden = true;
    mHideDelayTicks = 1;
}

void GuidanceVisibility::setApplicationActive(bool active)
{
    mApplicationActive = active;
    update();
}

void GuidanceVisibility::tick()
{
    if (mShowDelayTicks > 0 && --mShowDelayTicks == 0) {
        mStage->showLog();
        update();
    }
    if (mHideDelayTicks > 0 && --mHideDelayTicks == 0)
        update();
}

void GuidanceVisibility::update()
{
    // A show from inside of a hide would leave the window hidden for good.
    if (mOrdering)
        return;
    const QScopedValueRollback<bool> ordering(mOrdering, true);
    bool visible = false;
    do {
        visible = isVisible();
        order(visible);
    } while (visible != isVisible());
}

bool GuidanceVisibility::isVisible() const
{
    return mGuidanceRunning && (!mHostHidden || mApplicationActive);
}

void GuidanceVisibility::order(bool visible)
{
    mStage->setGuidanceVisible(visible);
    // Its showing is not bound to a running tutorial.
    if (mGuidanceRunning)
        mStage->setEditorTooltipVisible(visible);
}
