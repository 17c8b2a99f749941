#pragma once

#include <QWidget>

class GuidanceContext;

/// A window of no size that shows nothing. It exists while a tutorial is active, asks for the activation
/// once when it is made, and so makes this process the active application.
class TutorialLog : public QWidget
{
    Q_OBJECT

public:
    TutorialLog(QWidget *parent, GuidanceContext *manager);
    ~TutorialLog() override;

protected Q_SLOTS:
    void changeEvent(QEvent *event) override;

private:
    Q_DISABLE_COPY(TutorialLog)

    GuidanceContext *mManager;
};
