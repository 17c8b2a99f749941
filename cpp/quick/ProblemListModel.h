#pragma once

#include "check/Problem.h"

#include <QAbstractListModel>
#include <QVector>

/// Problems, a row each. Where other ones take their place, the rows of those that stay stay too, so that a view keeps
/// its place and its current row.
class ProblemListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role { RoleText = Qt::DisplayRole, RoleSeverity = Qt::UserRole + 1, RoleRule, RoleItemId, RoleItemName };

    using QAbstractListModel::QAbstractListModel;

    /// A problem is the same as one of before while its item and its rule are.
    void show(const QVector<Problem> &problems);
    const QVector<Problem> &problems() const { return mProblems; }
    int countOf(Problem::Severity severity) const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    void removeRowsWithout(const QVector<int> &targets);
    void insertRowsOf(const QVector<Problem> &problems, const QVector<int> &targets);

    QVector<Problem> mProblems;
};
