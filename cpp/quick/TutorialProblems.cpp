#include "quick/TutorialProblems.h"

#include "check/CheckSubject.h"
#include "check/TutorialCheck.h"
#include "quick/ProblemRows.h"
#include "Tutorial/TutorialManager.h"
#include "TutorialEditor/Manager.h"
#include "UndoRedo/UndoRedo.h"

#include <QClipboard>
#include <QGuiApplication>

#include <algorithm>

namespace
{
// The changes of one gesture come together.
constexpr qint64 kGesture = 30;
// Of a very large tutorial the checks take no more than one part in so many of the time.
constexpr qint64 kShare = 20;

constexpr int kNone = -1;

/// The worse one of two severities.
int worse(int one, int other)
{
    if (one == kNone || other == kNone)
        return qMax(one, other);
    return qMin(one, other);
}

CheckSubject currentSubject()
{
    const auto *manager = TutorialEditor::Manager::instance();
    CheckSubject subject;
    subject.document = &manager->mData;
    subject.file = manager->mFilename;
    return subject;
}

bool isSame(const Problem &one, const Problem &other)
{
    return one.text == other.text && one.severity == other.severity && one.itemName == other.itemName;
}
} // namespace

TutorialProblems::TutorialProblems(QObject *parent) : QAbstractListModel(parent)
{
    mTimer.setSingleShot(true);
    mTimer.setTimerType(Qt::PreciseTimer);
    connect(&mTimer, &QTimer::timeout, this, &TutorialProblems::check);
    if (managerInstance) {
        connect(managerInstance, &TutorialManager::documentReplaced, this, &TutorialProblems::schedule);
        connect(managerInstance, &TutorialManager::modifiedChanged, this, &TutorialProblems::schedule);
        connect(managerInstance, &TutorialManager::localeChanged, this, &TutorialProblems::schedule);
        connect(managerInstance, &TutorialManager::locale2Changed, this, &TutorialProblems::schedule);
    }
    schedule();
}

void TutorialProblems::setHistory(UndoRedo *history)
{
    if (mHistory)
        mHistory->disconnect(this);
    mHistory = history;
    if (history)
        connect(history, &UndoRedo::documentChanged, this, &TutorialProblems::schedule);
}

void TutorialProblems::schedule()
{
    if (mTimer.isActive())
        return;
    const qint64 rest = mSinceCheck.isValid() ? mPause - mSinceCheck.elapsed() : 0;
    mTimer.start(static_cast<int>(qMax(kGesture, rest)));
}

void TutorialProblems::checkNow()
{
    if (!mTimer.isActive())
        return;
    mTimer.stop();
    check();
}

void TutorialProblems::check()
{
    mSinceCheck.start();
    const bool isLoaded = managerInstance && !managerInstance->tutorialName().isEmpty();
    show(isLoaded ? TutorialCheck::check(currentSubject()) : QVector<Problem>());
    mPause = mSinceCheck.elapsed() * kShare;
}

void TutorialProblems::show(const QVector<Problem> &problems)
{
    const QVector<int> targets = ProblemRows::targets(mProblems, problems);
    removeRowsWithout(targets);
    insertRowsOf(problems, targets);
    for (int row = 0; row < problems.size(); ++row) {
        const bool same = isSame(mProblems.at(row), problems.at(row));
        mProblems[row] = problems.at(row);
        if (!same)
            Q_EMIT dataChanged(index(row), index(row));
    }
    readSeverities();
    ++mRevision;
    Q_EMIT revisionChanged();
}

void TutorialProblems::removeRowsWithout(const QVector<int> &targets)
{
    for (int last = targets.size() - 1; last >= 0; --last) {
        if (targets.at(last) >= 0)
            continue;
        int first = last;
        while (first > 0 && targets.at(first - 1) < 0)
            --first;
        beginRemoveRows(QModelIndex(), first, last);
        mProblems.remove(first, last - first + 1);
        endRemoveRows();
        last = first;
    }
}

void TutorialProblems::insertRowsOf(const QVector<Problem> &problems, const QVector<int> &targets)
{
    int row = 0;
    const auto insertTo = [&](int end) {
        if (row < end) {
            beginInsertRows(QModelIndex(), row, end - 1);
            mProblems.insert(row, end - row, Problem());
            std::copy(problems.begin() + row, problems.begin() + end, mProblems.begin() + row);
            endInsertRows();
        }
        row = end + 1;
    };
    for (const int target : targets) {
        if (target >= 0)
            insertTo(target);
    }
    insertTo(problems.size());
}

void TutorialProblems::readSeverities()
{
    mSeverities.clear();
    mFolderSeverities.clear();
    for (const Problem &problem : qAsConst(mProblems)) {
        int &severity = mSeverities.insert(problem.itemId, severityOf(problem.itemId)).value();
        severity = worse(severity, static_cast<int>(problem.severity));
    }
    if (!mProblems.isEmpty())
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

int TutorialProblems::countOf(Problem::Severity severity) const
{
    return static_cast<int>(std::count_if(mProblems.begin(), mProblems.end(),
                                          [=](const Problem &problem) { return problem.severity == severity; }));
}

int TutorialProblems::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : mProblems.size();
}

QVariant TutorialProblems::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= mProblems.size())
        return QVariant();
    const Problem &problem = mProblems.at(index.row());
    switch (role) {
    case RoleText:
        return problem.text;
    case RoleSeverity:
        return static_cast<int>(problem.severity);
    case RoleRule:
        return problem.rule;
    case RoleItemId:
        return problem.itemId;
    case RoleItemName:
        return problem.itemName;
    default:
        return QVariant();
    }
}

QHash<int, QByteArray> TutorialProblems::roleNames() const
{
    return { { RoleText, QByteArrayLiteral("text") },
             { RoleSeverity, QByteArrayLiteral("severity") },
             { RoleRule, QByteArrayLiteral("rule") },
             { RoleItemId, QByteArrayLiteral("itemId") },
             { RoleItemName, QByteArrayLiteral("itemName") } };
}

QString TutorialProblems::textOf(int itemId) const
{
    QStringList texts;
    for (const Problem &problem : mProblems) {
        if (problem.itemId == itemId)
            texts.append(problem.text);
    }
    return texts.join(QLatin1Char('\n'));
}

int TutorialProblems::itemIdAt(int row) const
{
    return row >= 0 && row < mProblems.size() ? mProblems.at(row).itemId : -1;
}

void TutorialProblems::copyRow(int row) const
{
    if (row < 0 || row >= mProblems.size())
        return;
    const Problem &problem = mProblems.at(row);
    const QString place =
        problem.itemId < 0 ? QString() : QStringLiteral("#%1 %2: ").arg(problem.itemId).arg(problem.itemName);
    QGuiApplication::clipboard()->setText(place + problem.text);
}
