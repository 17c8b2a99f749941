#include "Tutorial/guidance/TutorialLog.h"

#include "Tutorial/guidance/WindowActivation.h"

TutorialLog::TutorialLog(QWidget *parent, GuidanceContext *manager) : QWidget(parent), mManager(manager)
{
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setGeometry(0, 0, 0, 0);
#ifdef Q_OS_WIN
    // There Qt makes a window without a size 160 pixels wide and high. A clear pixel lets what is below it be seen and
    // be clicked.
    setAttribute(Qt::WA_TranslucentBackground);
    setGeometry(0, 0, 1, 1);
#endif
    show();
    activateWindow();
}

TutorialLog::~TutorialLog() = default;

void TutorialLog::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    WindowActivation::follow(this, *event, mManager, WindowActivation::AcceptLoss);
}
