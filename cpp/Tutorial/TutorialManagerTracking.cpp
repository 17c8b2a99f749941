// What is known of the host editor's windows, and whether the guidance windows are to be seen.

#include "Tutorial/guidance/TutorialIndicator.h"
#include "Tutorial/link/HostMessages.h"
#include "Tutorial/TutorialManager.h"

#include <QCursor>

using namespace HostMessages;

void TutorialManager::onWindowStack(const QStringList &fields)
{
    const QString command = HostMessages::text(fields, 1);
    if (command == FromHost::kPush)
        mHostWindows.push(HostMessages::text(fields, 2));
    else if (command == FromHost::kPop)
        mHostWindows.pop();
}

void TutorialManager::onPosition(const QStringList &fields)
{
    setPosition(HostMessages::text(fields, 1), HostMessages::number(fields, 2), HostMessages::number(fields, 3));
}

void TutorialManager::setPosition(const QString &key, int x, int y)
{
    mHostWindows.setPosition(key, QPoint(x, y));
}

QString TutorialManager::getCurrentWindowKey() const
{
    return mHostWindows.currentKey();
}

QPoint TutorialManager::getXy(const QString &windowKey) const
{
    return mHostWindows.position(windowKey);
}

QPoint TutorialManager::getCursorPos() const
{
    return QCursor::pos();
}

void TutorialManager::dropPopupWindowKey()
{
    mHostWindows.dropPopup();
}

void TutorialManager::updateIndicatorXyWindowKey(int x, int y, const QString &windowKey)
{
    sendMessage(HostMessages::message(ToHost::kIndicator, ToHost::kUpdateXYWindowKey, x, y, windowKey));
    if (TutorialIndicator *indicator = mGuidanceWindows.indicator())
        indicator->setTargetWindowOffset(x, y, windowKey, indicator->mArrowVisible);
}

void TutorialManager::onApplicationStateChanged(Qt::ApplicationState state)
{
    if (state == Qt::ApplicationActive || state == Qt::ApplicationInactive)
        mVisibility.setApplicationActive(state == Qt::ApplicationActive);
}

void TutorialManager::updateGuidanceVisibility()
{
    mVisibility.update();
}
