#include "quick/ProblemListModel.h"

#include "quick/ProblemRows.h"

#include <algorithm>

namespace
{
bool isSame(const Problem &one, const Problem &other)
{
    return one.text == other.text && one.severity == other.severity && one.itemName == other.itemName;
}
} // namespace

void ProblemListModel::show(const QVector<Problem> &problems)
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
}

void ProblemListModel::removeRowsWithout(const QVector<int> &targets)
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

void ProblemListModel::insertRowsOf(const QVector<Problem> &problems, const QVector<int> &targets)
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

int ProblemListModel::countOf(Problem::Severity severity) const
{
    return static_cast<int>(std::count_if(mProblems.begin(), mProblems.end(),
                                          [=](const Problem &problem) { return problem.severity == severity; }));
}

int ProblemListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : mProblems.size();
}

QVariant ProblemListModel::data(const QModelIndex &index, int role) const
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

QHash<int, QByteArray> ProblemListModel::roleNames() const
{
    return { { RoleText, QByteArrayLiteral("text") },
             { RoleSeverity, QByteArrayLiteral("severity") },
             { RoleRule, QByteArrayLiteral("rule") },
             { RoleItemId, QByteArrayLiteral("itemId") },
             { RoleItemName, QByteArrayLiteral("itemName") } };
}
