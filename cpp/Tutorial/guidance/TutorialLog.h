#pragma once

#include <QWidget>

class GuidanceContext;

/// A window of no size that shows nothing: it exists while a tutorial is active, asks for the activation
/// once when it is made, and tells the context when it gains or loses it.
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
