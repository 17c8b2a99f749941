#include "ScenarioWalker.h"

#include "Transcript.h"

namespace
{
// Time for a menu or a dialog to open before the next step points into it.
constexpr int kPauseAfterEvent = 150;
} // namespace

ScenarioWalker::ScenarioWalker(const Holds &holds, QObject *parent) : QObject(parent), mHolds(holds)
{
    mWaitTimer.setSingleShot(true);
    mLeaveTimer.setSingleShot(true);
    connect(&mWaitTimer, &QTimer::timeout, this, [this] { leave(false, 0); });
    connect(&mLeaveTimer, &QTimer::timeout, this, &ScenarioWalker::goOn);
}

void ScenarioWalker::start(const HostScenario::Scenario &scenario, int id)
{
    mWaitTimer.stop();
    mLeaveTimer.stop();
    mScenario = scenario;
    mCount = 0;
    if (id != HostScenario::kNone && !scenario.indexById.contains(id))
        Transcript::remark(QStringLiteral("there is no item %1, the walk begins at the first one").arg(id));
    enter(HostScenario::startIndex(scenario, id));
}

void ScenarioWalker::moveStep(int x, int y, const QString &windowKey)
{
    HostScenario::Step &step = mScenario.steps[mIndex];
    step.x = x;
    step.y = y;
    step.windowKey = windowKey;
}

void ScenarioWalker::handleEvent(const HostEvent &event)
{
    if (isRunning() && isMetBy(mCondition, event))
        leave(false, kPauseAfterEvent);
}

void ScenarioWalker::handleButton(const QString &button)
{
    if (!isRunning())
        return;
    const bool next = button == HostMessages::ToHost::kNext;
    if (next && mCondition.waits == StepCondition::Waits::ForNext)
        leave(false, 0);
    else if (!next && mCondition.waits == StepCondition::Waits::ForAnswer)
        leave(button == HostMessages::ToHost::kNo, 0);
}

void ScenarioWalker::enter(int index)
{
    mIndex = index;
    mLeaving = false;
    if (!isRunning()) {
        Transcript::remark(QStringLiteral("the tutorial has ended"));
        Q_EMIT finished();
        return;
    }
    ++mCount;
    mCondition = parseCondition(step().condition);
    Transcript::remark(
        QStringLiteral("step %1: %2 (%3)").arg(QString::number(step().id), step().name, step().condition));
    if (!mCondition.understood) {
        Transcript::remark(QStringLiteral("this condition is unknown here, Next goes on"));
    } else if (mCondition.waits == StepCondition::Waits::ForEvent && mHolds(mCondition)) {
        Transcript::remark(QStringLiteral("this is so already, Next goes on"));
        mCondition = StepCondition();
    }
    if (mCondition.waits == StepCondition::Waits::ForTime)
        mWaitTimer.start(mCondition.milliseconds());
    Q_EMIT entered();
}

void ScenarioWalker::leave(bool answeredNo, int delay)
{
    if (mLeaving)
        return;
    mLeaving = true;
    mAnsweredNo = answeredNo;
    Q_EMIT leaving();
    mLeaveTimer.start(delay);
}

void ScenarioWalker::goOn()
{
    enter(HostScenario::nextIndex(mScenario, mIndex, mAnsweredNo));
}
