#include "quick/TutorialProblems.h"

#include "TutorialEditor/Manager.h"
#include "UndoRedo/UndoRedo.h"

#include <QClipboard>
#include <QGuiApplication>

namespace
{
// The changes of one gesture come together.
constexpr int kGesture = 30;
// Of a very large tutorial the checks take no more than one part in so many of the time.
constexpr qint64 kShare = 20;
// A check that takes longer would be felt by who types: it waits until nothing has changed for so long, or for the
// most.
constexpr qint64 kFelt = 16;
constexpr int kStillness = 300;
constexpr qint64 kMostWait = 5000;

// Between two slices of time in which hints are measured.
constexpr int kMeasurePause = 50;

constexpr int kNone = -1;

/// The worse one of two severities.
int worse(int one, int other)
{
    if (one == kNone || other == kNone)
        return qMax(one, other);
    return qMin(one, other);
}
} // namespace

TutorialProblems::TutorialProblems(QObject *parent) : ProblemListModel(parent)
{
    mTimer.setSingleShot(true);
    mTimer.setTimerType(Qt::PreciseTimer);
    connect(&mTimer, &QTimer::timeout, this, &TutorialProblems::check);
    connect(&mTutorial, &LoadedTutorial::changed, this, &TutorialProblems::schedule);
    mMeasureTimer.setSingleShot(true);
    connect(&mMeasureTimer, &QTimer::timeout, this, &TutorialProblems::measureHints);
    schedule();
}

void TutorialProblems::setHistory(UndoRedo *history)
{
    if (mHistory)
        mHistory->disconnect(this);
    mHistory = history;
    if (history)
        connect(history, &UndoRedo::documentChanged, this, &TutorialProblems::onDocumentChanged);
}

void TutorialProblems::onDocumentChanged()
{
    // No key waits for the hints.
    if (mMeasureTimer.isActive())
        mMeasureTimer.start(kStillness);
    schedule();
}

void TutorialProblems::schedule()
{
    const bool isFelt = mPause > kFelt * kShare;
    if (!mTimer.isActive())
        mSinceChange.start();
    else if (!isFelt || mSinceChange.elapsed() > kMostWait)
        return;
    const qint64 rest = mSinceCheck.isValid() ? mPause - mSinceCheck.elapsed() : 0;
    mTimer.start(static_cast<int>(qMax<qint64>(isFelt ? kStillness : kGesture, rest)));
}

void TutorialProblems::check()
{
    mTutorial.readScenario();
    mSinceCheck.start();
    show(mTutorial.problems());
    readSeverities();
    ++mRevision;
    Q_EMIT revisionChanged();
    mPause = mSinceCheck.elapsed() * kShare;
    mMeasureTimer.start(kMeasurePause);
}

void TutorialProblems::measureHints()
{
    if (!LoadedTutorial::isLoaded() || !mTutorial.measureHints())
        return;
    mMeasureTimer.start(kMeasurePause);
    if (!mTimer.isActive())
        schedule();
}

void TutorialProblems::readSeverities()
{
    mSeverities.clear();
    mFolderSeverities.clear();
    for (const Problem &problem : problems()) {
        int &severity = mSeverities.insert(problem.itemId, severityOf(problem.itemId)).value();
        severity = worse(severity, static_cast<int>(problem.severity));
    }
    if (!problems().isEmpty())
        readFolder(TutorialEditor::Manager::instance()->mData.mRoot);
}

int TutorialProblems::readFolder(const TreeItem<TutorialItemData> &folder)
{
    int severity = kNone;
    for (const TreeItem<TutorialItemData> &child : folder.mChildren) {
        if (severityOf(child.mId) < static_cast<int>(Problem::Severity::Remark))
            severity = worse(severity, severityOf(child.mId));
        if (child.mFolder)
            severity = worse(severity, readFolder(child));
    }
    mFolderSeverities.insert(folder.mId, severity);
    return severity;
}

QString TutorialProblems::textOf(int itemId) const
{
    QStringList texts;
    for (const Problem &problem : problems()) {
        if (problem.itemId == itemId)
            texts.append(problem.text);
    }
    return texts.join(QLatin1Char('\n'));
}

int TutorialProblems::itemIdAt(int row) const
{
    return row >= 0 && row < problems().size() ? problems().at(row).itemId : -1;
}

void TutorialProblems::copyRow(int row) const
{
    if (row < 0 || row >= problems().size())
        return;
    const Problem &problem = problems().at(row);
    const QString place =
        problem.itemId < 0 ? QString() : QStringLiteral("#%1 %2: ").arg(problem.itemId).arg(problem.itemName);
    QGuiApplication::clipboard()->setText(place + problem.text);
}
