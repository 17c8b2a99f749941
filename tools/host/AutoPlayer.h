#pragma once

#include "HostOptions.h"
#include "ProgramWindows.h"

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QTimer>

class ControlRegistry;
class ScenarioWalker;

/// Plays a tutorial in the place of a user. It lets each step come to rest on the screen, and then
/// does what the step waits for: on the editor's own widgets with mouse and keyboard events, on the
/// program's buttons with real clicks.
class AutoPlayer : public QObject
{
    Q_OBJECT

public:
    AutoPlayer(const HostOptions &options, ScenarioWalker *walker, const ControlRegistry *registry,
               QObject *parent = nullptr);

    /// What keeps this system from being played on; empty when nothing does.
    static QString obstacle();

    void setProcess(qint64 processId) { mWindows.setProcess(processId); }

    /// The current step was sent to the program.
    void stepShown();
    void stepLeft();

Q_SIGNALS:
    /// The step can be seen as it is meant, its action comes next.
    void atRest();
    /// The step could not be played.
    void failed(const QString &reason);

private:
    void look();
    void judge(const QVector<QRect> &windows);
    void act();
    void pressButton();
    QRect buttonToPress(const QVector<QRect> &buttons) const;
    bool perform();
    bool performOnWidget(QWidget *widget);
    bool clickAtArrow(Qt::MouseButton button);
    QPoint arrowTip(const QString &key) const;

    HostOptions mOptions;
    ScenarioWalker *mWalker;
    const ControlRegistry *mRegistry;
    ProgramWindows mWindows;
    QVector<QRect> mSeen;
    QTimer mTimer;
    QElapsedTimer mShown;
    bool mActing = false;
    int mAttempts = 0;
    bool mAnswerNo = false;
    QHash<int, int> mVisits;
};
