#include "Tutorial/guidance/GuidanceWindows.h"

#include "Tutorial/guidance/EditorTooltip.h"
#include "Tutorial/guidance/TutorialIndicator.h"
#include "Tutorial/guidance/TutorialLog.h"
#include "Tutorial/guidance/TutorialTooltip.h"

GuidanceWindows::GuidanceWindows(GuidanceContext *context) : mContext(context) { }

GuidanceWindows::~GuidanceWindows() = default;

void GuidanceWindows::clear()
{
    // Each pointer is null before its window goes, which may call back on the way out.
    mIndicator.reset();
    mLogWindow.reset();
    mEditorTooltip.reset();
}

void GuidanceWindows::begin()
{
    if (mLogWindow)
        mLogWindow->show();
    else
        mLogWindow = std::make_unique<TutorialLog>(nullptr, mContext);
    if (!mIndicator) {
        mIndicator = std::make_unique<TutorialIndicator>(nullptr, mContext);
        return;
    }
    showTooltip();
    mIndicator->showButtons();
    mIndicator->forgetAnnounced();
}

void GuidanceWindows::setGuidanceVisible(bool visible)
{
    if (mIndicator) {
        if (mIndicator->mTooltip)
            mIndicator->mTooltip->setVisible(visible);
        if (visible)
            mIndicator->showButtons();
        else
            mIndicator->hideButtons();
    }
    if (mLogWindow)
        mLogWindow->setVisible(visible);
}

void GuidanceWindows::showTooltip()
{
    if (mIndicator->mTooltip)
        mIndicator->mTooltip->show();
}

void GuidanceWindows::showLog()
{
    if (mLogWindow)
        mLogWindow->show();
}

void GuidanceWindows::showEditorTooltip(const QString &text, int x, int y)
{
    if (!mEditorTooltip)
        mEditorTooltip = std::make_unique<EditorTooltip>(nullptr, mContext);
    mEditorTooltip->show(text, x, y);
}

void GuidanceWindows::setEditorTooltipVisible(bool visible)
{
    if (mEditorTooltip)
        mEditorTooltip->setVisible(visible);
}

void GuidanceWindows::forgetEditorTooltip()
{
    // Called from inside the window's own close event, which can come again until it is freed.
    if (mEditorTooltip)
        mEditorTooltip.release()->deleteLater();
}
