#pragma once

#include "HostScenario.h"
#include "StepCondition.h"

#include <QObject>
#include <QTimer>

#include <functional>

/// Walks a scenario: waits at each step for its condition and goes on from there.
class ScenarioWalker : public QObject
{
    Q_OBJECT

public:
    /// Whether what a condition waits for is so already.
    using Holds = std::function<bool(const StepCondition &)>;

    explicit ScenarioWalker(const Holds &holds, QObject *parent = nullptr);

    /// Begins at the item of that id, also in the middle of another walk.
    void start(const HostScenario::Scenario &scenario, int id);

    bool isRunning() const { return mIndex != HostScenario::kNone; }
    const HostScenario::Step &step() const { return mScenario.steps.at(mIndex); }
    const StepCondition &condition() const { return mCondition; }
    /// How many steps this walk has entered.
    int count() const { return mCount; }

    /// Moves the current step to another place.
    void moveStep(int x, int y, const QString &windowKey);

    /// What happened in the editor, and which button was pressed in the program.
    void handleEvent(const HostEvent &event);
    void handleButton(const QString &button);

Q_SIGNALS:
    void entered();
    /// The condition is met; the step is still the current one.
    void leaving();
    void finished();

private:
    void enter(int index);
    void leave(bool answeredNo, int delay);
    void goOn();

    Holds mHolds;
    HostScenario::Scenario mScenario;
    StepCondition mCondition;
    int mIndex = HostScenario::kNone;
    int mCount = 0;
    bool mLeaving = false;
    bool mAnsweredNo = false;
    QTimer mWaitTimer;
    QTimer mLeaveTimer;
};
