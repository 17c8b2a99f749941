#include "quick/HintTableModel.h"

#include "Tutorial/translation/StaleHints.h"
#include "Tutorial/TutorialManager.h"
#include "TutorialEditor/Manager.h"
#include "UndoRedo/UndoRedo.h"

HintTableModel::HintTableModel(QObject *parent) : QAbstractListModel(parent)
{
    connect(managerInstance, &TutorialManager::documentReplaced, this, &HintTableModel::schedule);
    connect(managerInstance, &TutorialManager::staleIdsChanged, this, &HintTableModel::schedule);
}

int HintTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : mRows.size();
}

QVariant HintTableModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= mRows.size())
        return {};
    const HintRow &row = mRows.at(index.row());
    switch (role) {
    case RoleId:
        return row.id;
    case RoleName:
        return row.name;
    case RoleFirst:
        return row.first;
    case RoleSecond:
        return row.second;
    case RoleState:
        switch (row.state) {
        case HintRow::State::Complete:
            return QString();
        case HintRow::State::Missing:
            return QStringLiteral("missing");
        case HintRow::State::Stale:
            return QStringLiteral("stale");
        case HintRow::State::Same:
            return QStringLiteral("same");
        }
    }
    return {};
}

QHash<int, QByteArray> HintTableModel::roleNames() const
{
    return { { RoleId, QByteArrayLiteral("itemId") },
             { RoleName, QByteArrayLiteral("itemName") },
             { RoleFirst, QByteArrayLiteral("firstHint") },
             { RoleSecond, QByteArrayLiteral("secondHint") },
             { RoleState, QByteArrayLiteral("hintState") } };
}

void HintTableModel::setActive(bool active)
{
    if (active == mActive)
        return;
    mActive = active;
    if (active)
        follow();
    Q_EMIT activeChanged();
}

void HintTableModel::setHistory(UndoRedo *history)
{
    if (mHistory)
        mHistory->disconnect(this);
    mHistory = history;
    if (history)
        connect(history, &UndoRedo::documentChanged, this, &HintTableModel::schedule);
}

void HintTableModel::setFilter(Filter filter, const QString &text)
{
    mFilter = filter;
    mText = text;
    mSource.clear();
    follow();
}

bool HintTableModel::matches(const HintRow &row) const
{
    if ((mFilter == Missing && row.state != HintRow::State::Missing)
        || (mFilter == Stale && row.state != HintRow::State::Stale))
        return false;
    return HintRows::holdsText(row, mText);
}

int HintTableModel::rowOf(int id) const
{
    for (int row = 0; row < mRows.size(); ++row) {
        if (mRows.at(row).id == id)
            return row;
    }
    return -1;
}

int HintTableModel::idOf(int row) const
{
    return row >= 0 && row < mRows.size() ? mRows.at(row).id : -1;
}

TutorialItemData *HintTableModel::record(int id)
{
    return TutorialEditor::Manager::instance()->mData.getData(id);
}

QString HintTableModel::fieldOf(bool second)
{
    return second ? QStringLiteral("hint2") : QStringLiteral("hint");
}

QString HintTableModel::hint(int id, bool second) const
{
    const TutorialItemData *item = record(id);
    return item ? item->getValue(fieldOf(second)).toString() : QString();
}

void HintTableModel::setHint(int id, bool second, const QString &text)
{
    TutorialItemData *item = record(id);
    if (!item || !mHistory || hint(id, second) == text)
        return;
    mHistory->beginSequence(second ? QStringLiteral("setHint2") : QStringLiteral("setHint"));
    item->setValue(fieldOf(second), text);
    mHistory->endSequence();
    if (second)
        managerInstance->noteTranslated(id);
    follow();
}

bool HintTableModel::isSecondToDo(int row) const
{
    const HintRow &hints = mRows.at(row);
    return hints.state != HintRow::State::Missing || StaleHints::isMissing(hints.id, hints.second);
}

int HintTableModel::nextToDo(int row) const
{
    for (int i = 1; i <= mRows.size(); ++i) {
        const int next = (row + i) % mRows.size();
        const HintRow::State state = mRows.at(next).state;
        if (state == HintRow::State::Missing || state == HintRow::State::Stale)
            return next;
    }
    return -1;
}

void HintTableModel::schedule()
{
    if (!mDue && mActive)
        QMetaObject::invokeMethod(this, "followIfDue", Qt::QueuedConnection);
    mDue = true;
}

void HintTableModel::followIfDue()
{
    if (mDue)
        follow();
}

void HintTableModel::follow()
{
    mDue = false;
    if (!mActive)
        return;
    QSet<int> shown;
    const QStringList source{ managerInstance->tutorialName(), managerInstance->locale2() };
    if (mSource == source) {
        for (const HintRow &row : qAsConst(mRows))
            shown.insert(row.id);
    }
    mSource = source;
    const QVector<HintRow> all =
        HintRows::read(TutorialEditor::Manager::instance()->mData, managerInstance->staleIds());
    mAllCount = all.size();
    mMissingCount = 0;
    mStaleCount = 0;
    QVector<HintRow> rows;
    for (const HintRow &row : all) {
        mMissingCount += row.state == HintRow::State::Missing;
        mStaleCount += row.state == HintRow::State::Stale;
        if (shown.contains(row.id) || matches(row))
            rows.append(row);
    }
    takeRows(rows);
    Q_EMIT followed();
}

void HintTableModel::takeRows(const QVector<HintRow> &rows)
{
    // Edits mostly leave the rows where they are, or add or take some at one place.
    int first = 0;
    while (first < rows.size() && first < mRows.size() && rows.at(first).id == mRows.at(first).id)
        ++first;
    int last = mRows.size();
    int newLast = rows.size();
    while (last > first && newLast > first && mRows.at(last - 1).id == rows.at(newLast - 1).id) {
        --last;
        --newLast;
    }
    replaceRows(first, last, rows.mid(first, newLast - first));
    for (int begin = 0; begin < rows.size(); ++begin) {
        int end = begin;
        for (; end < rows.size() && !(rows.at(end) == mRows.at(end)); ++end)
            mRows[end] = rows.at(end);
        if (end > begin)
            Q_EMIT dataChanged(index(begin), index(end - 1));
        begin = end;
    }
}

void HintTableModel::replaceRows(int first, int last, const QVector<HintRow> &rows)
{
    if (last > first) {
        beginRemoveRows({}, first, last - 1);
        mRows.remove(first, last - first);
        endRemoveRows();
    }
    if (rows.isEmpty())
        return;
    beginInsertRows({}, first, first + rows.size() - 1);
    mRows = mRows.mid(0, first) + rows + mRows.mid(first);
    endInsertRows();
}
