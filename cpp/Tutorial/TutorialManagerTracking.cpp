// What is known of the host editor's windows, and whether the guidance windows are to be seen.

#include "Tutorial/guidance/EditorTooltip.h"
#include "Tutorial/guidance/TutorialIndicator.h"
#include "Tutorial/guidance/TutorialLog.h"
#include "Tutorial/guidance/TutorialTooltip.h"
#include "Tutorial/link/HostMessages.h"
#include "Tutorial/TutorialManager.h"

#include <QCursor>
#include <QScopedValueRollback>

void TutorialManager::onWindowStack(const QStringList &fields)
{
    const QString command = HostMessages::text(fields, 1);
    if (command == QLatin1String("push"))
        mWindowStack.append(HostMessages::text(fields, 2));
    else if (command == QLatin1String("pop") && !mWindowStack.isEmpty())
        mWindowStack.removeLast();
    else
        return;
    Q_EMIT currentWindowKeyChanged();
}

void TutorialManager::onPosition(const QStringList &fields)
{
    setPosition(HostMessages::text(fields, 1), HostMessages::number(fields, 2), HostMessages::number(fields, 3));
}

void TutorialManager::setPosition(const QString &key, int x, int y)
{
    if (!key.isEmpty())
        mPositionByKey.insert(key, QPoint(x, y));
}

QString TutorialManager::getCurrentWindowKey() const
{
    return mWindowStack.isEmpty() ? QStringLiteral("ApplicationWindow") : mWindowStack.last();
}

QPoint TutorialManager::getXy(const QString &windowKey) const
{
    return mPositionByKey.value(windowKey);
}

QPoint TutorialManager::getCursorPos() const
{
    return QCursor::pos();
}

void TutorialManager::dropPopupWindowKey()
{
    if (mWindowStack.isEmpty() || mWindowStack.last() != QLatin1String("Popup"))
        return;
    mWindowStack.removeLast();
    Q_EMIT currentWindowKeyChanged();
}

void TutorialManager::updateIndicatorXyWindowKey(int x, int y, const QString &windowKey)
{
    sendMessage(HostMessages::join({ QStringLiteral("indicator"), QStringLiteral("updateXYWindowKey"),
                                     QString::number(x), QString::number(y), windowKey }));
    if (mIndicator)
        mIndicator->setTargetWindowOffset(x, y, windowKey, mIndicator->mArrowVisible);
}

void TutorialManager::onApplicationStateChanged(Qt::ApplicationState state)
{
    if (state != Qt::ApplicationActive && state != Qt::ApplicationInactive)
        return;
    mApplicationActive = state == Qt::ApplicationActive;
    updateGuidanceVisibility();
}

void TutorialManager::updateGuidanceVisibility()
{
    // A window that is shown or hidden can change the activation at once, which leads back here. A
    // show from inside of a hide would leave the window hidden for good.
    if (mChangingVisibility)
        return;
    const QScopedValueRollback<bool> changing(mChangingVisibility, true);
    bool visible = false;
    do {
        visible = isGuidanceVisible();
        setGuidanceVisible(visible);
    } while (visible != isGuidanceVisible());
}

bool TutorialManager::isGuidanceVisible() const
{
    return mGuidanceRunning && (!mHostHidden || mApplicationActive);
}

void TutorialManager::setGuidanceVisible(bool visible)
{
    if (mIndicator) {
        if (visible) {
            showTooltipWindow();
            mIndicator->showButtons();
        } else {
            hideTooltipWindow();
            mIndicator->hideButtons();
        }
    }
    if (mLogWindow)
        mLogWindow->setVisible(visible);
    // Its showing is not bound to a running tutorial.
    if (mEditorTooltip && mGuidanceRunning)
        mEditorTooltip->setVisible(visible);
}
