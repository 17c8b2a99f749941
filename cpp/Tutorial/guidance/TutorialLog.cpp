#include "Tutorial/guidance/TutorialLog.h"

#include "Tutorial/guidance/WindowActivation.h"

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
    WindowActivation::follow(this, *event, mManager, WindowActivation::AcceptLoss);
}
