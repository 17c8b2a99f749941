#include "Tutorial/guidance/TutorialLog.h"

#include "Tutorial/guidance/GuidanceContext.h"

#include <QEvent>

TutorialLog::TutorialLog(QWidget *parent, GuidanceContext *manager) : QWidget(parent), mManager(manager)
{
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setGeometry(0, 0, 0, 0);
    show();
    activateWindow();
}

TutorialLog::~TutorialLog() = default;

void TutorialLog::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::ActivationChange)
        return;
    if (isActiveWindow())
        mManager->dropPopupWindowKey();
    mManager->updateGuidanceVisibility();
}
