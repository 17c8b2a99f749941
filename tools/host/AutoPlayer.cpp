#include "AutoPlayer.h"

#include "ControlRegistry.h"
#include "ScenarioWalker.h"
#include "SyntheticInput.h"

#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QSpinBox>

namespace
{
// The guidance windows ease towards their place; they have arrived when two looks see the same.
constexpr int kLookPeriod = 150;
constexpr int kLongestJourney = 6000;
// The arrow rests in the first second of every two, and bounces in the other.
constexpr int kBouncePeriod = 2000;
constexpr int kRestBegin = 100;
constexpr int kRestEnd = 850;
// An action that does not end its step is tried again.
constexpr int kRetryAfter = 3000;
constexpr int kMostAttempts = 3;

// Where the tip of the resting arrow stands, seen from a step's place.
constexpr QPoint kArrowTip(38, 133);
constexpr QPoint kDragWay(150, 90);

const QString kTypedText = QStringLiteral("my shape");
} // namespace

AutoPlayer::AutoPlayer(const HostOptions &options, ScenarioWalker *walker, const ControlRegistry *registry,
                       QObject *parent)
    : QObject(parent)
    , mOptions(options)
    , mWalker(walker)
    , mRegistry(registry)
{
    mTimer.setSingleShot(true);
    connect(&mTimer, &QTimer::timeout, this, &AutoPlayer::look);
}

QString AutoPlayer::obstacle()
{
    if (ProgramWindows::isAvailable())
        return QString();
    return QStringLiteral("--auto presses the program's buttons with xdotool, which is missing. "
                          "Install it with: apt-get install xdotool");
}

void AutoPlayer::stepShown()
{
    mShown.start();
    mSeen.clear();
    mAttempts = 0;
    mActing = false;
    const HostScenario::Step &step = mWalker->step();
    if (mWalker->condition().waits == StepCondition::Waits::ForAnswer) {
        const bool first = mVisits[step.id]++ == 0;
        mAnswerNo = mOptions.answers == AnswerPolicy::No || (mOptions.answers == AnswerPolicy::Both && first);
    }
    mTimer.start(mOptions.delay);
}

void AutoPlayer::stepLeft()
{
    mTimer.stop();
}

void AutoPlayer::look()
{
    const int count = mWalker->count();
    mWindows.list([this, count](const QVector<QRect> &windows) {
        // The step may have ended while the answer was under way.
        if (mWalker->isRunning() && count == mWalker->count())
            judge(windows);
    });
}

void AutoPlayer::judge(const QVector<QRect> &windows)
{
    const bool moving = windows != mSeen;
    mSeen = windows;
    if (moving && mShown.elapsed() < kLongestJourney) {
        mTimer.start(kLookPeriod);
        return;
    }
    const int phase = int(mShown.elapsed() % kBouncePeriod);
    if (!mOptions.pictureFolder.isEmpty() && !mActing && (phase < kRestBegin || phase > kRestEnd)) {
        mTimer.start((kBouncePeriod + kRestBegin - phase) % kBouncePeriod + 1);
        return;
    }
    act();
}

void AutoPlayer::act()
{
    const StepCondition::Waits waits = mWalker->condition().waits;
    if (!mActing) {
        mActing = true;
        Q_EMIT atRest();
    }
    if (waits == StepCondition::Waits::ForTime)
        return;
    if (++mAttempts > kMostAttempts) {
        Q_EMIT failed(QStringLiteral("step %1 did not end by what --auto did").arg(mWalker->step().id));
        return;
    }
    mTimer.start(kRetryAfter);
    if (waits == StepCondition::Waits::ForEvent) {
        if (!perform())
            Q_EMIT failed(QStringLiteral("--auto does not know how to play step %1").arg(mWalker->step().id));
    } else {
        pressButton();
    }
}

void AutoPlayer::pressButton()
{
    const QRect button = buttonToPress(ProgramWindows::buttons(mSeen));
    if (button.isValid())
        mWindows.click(button.center());
}

QRect AutoPlayer::buttonToPress(const QVector<QRect> &buttons) const
{
    if (buttons.isEmpty())
        return QRect();
    return mAnswerNo && mWalker->condition().waits == StepCondition::Waits::ForAnswer ? buttons.last()
                                                                                      : buttons.first();
}

QPoint AutoPlayer::arrowTip(const QString &key) const
{
    QWidget *widget = mRegistry->widget(key);
    const QRect rect = mRegistry->screenRect(key);
    const HostScenario::Step &step = mWalker->step();
    QPoint tip = rect.topLeft() + QPoint(step.x, step.y) + kArrowTip;
    if (step.windowKey != key || !step.hasPlace() || !rect.contains(tip))
        tip = rect.center();
    return widget->mapFromGlobal(tip);
}

bool AutoPlayer::clickAtArrow(Qt::MouseButton button)
{
    const QString key = mWalker->step().windowKey;
    if (!mRegistry->screenRect(key).isValid())
        return false;
    SyntheticInput::click(mRegistry->widget(key), arrowTip(key), button);
    return true;
}

bool AutoPlayer::perform()
{
    const StepCondition &condition = mWalker->condition();
    // Actions, menus and windows have no place of their own: the arrow shows what to click.
    if (condition.kind == QLatin1String("action") || condition.kind == QLatin1String("windowState"))
        return clickAtArrow(Qt::LeftButton);
    if (condition.kind == QLatin1String("popup") && !mRegistry->screenRect(condition.key).isValid())
        return clickAtArrow(Qt::RightButton);
    return mRegistry->screenRect(condition.key).isValid() && performOnWidget(mRegistry->widget(condition.key));
}

bool AutoPlayer::performOnWidget(QWidget *widget)
{
    const StepCondition condition = mWalker->condition();
    const QPoint tip = arrowTip(condition.key);
    const int number = condition.value.toInt();
    if (condition.kind == QLatin1String("mouseEvent") && condition.value == QLatin1String("drag")) {
        SyntheticInput::drag(widget, tip, tip + kDragWay);
    } else if (condition.kind == QLatin1String("mouseEvent")) {
        if (condition.value == QLatin1String("doubleClick"))
            SyntheticInput::doubleClick(widget, tip);
        else
            SyntheticInput::click(widget, tip, Qt::RightButton);
    } else if (condition.kind == QLatin1String("textLength")) {
        SyntheticInput::typeOver(widget, kTypedText.leftJustified(number, QLatin1Char('x')));
    } else if (auto *list = qobject_cast<QListWidget *>(widget); list && condition.kind == QLatin1String("list")) {
        if (number < 0 || number >= list->count())
            return false;
        SyntheticInput::click(list->viewport(), list->visualItemRect(list->item(number)).center());
    } else if (auto *combo = qobject_cast<QComboBox *>(widget)) {
        SyntheticInput::pressKey(combo, Qt::Key_Home);
        for (int i = 0; i < number; ++i)
            SyntheticInput::pressKey(combo, Qt::Key_Down);
    } else if (auto *spin = qobject_cast<QSpinBox *>(widget)) {
        SyntheticInput::typeOver(spin, condition.value);
    } else {
        SyntheticInput::click(widget, tip);
    }
    return true;
}
