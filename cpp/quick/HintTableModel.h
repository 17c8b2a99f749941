#pragma once

#include "quick/HintRows.h"

#include <QAbstractListModel>

class UndoRedo;

/// The hints of all steps in both languages, as rows for the translation's table.
///
/// The rows follow the document once in a turn of the event loop. One that stops to match the filter by an edit stays
/// until the filter is set again: it must not go from under the hands of who edits it.
class HintTableModel : public QAbstractListModel
{
    Q_OBJECT
    /// Only then does it follow.
    Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY activeChanged)
    Q_PROPERTY(UndoRedo *history READ history WRITE setHistory)
    Q_PROPERTY(int allCount READ allCount NOTIFY followed)
    Q_PROPERTY(int missingCount READ missingCount NOTIFY followed)
    Q_PROPERTY(int staleCount READ staleCount NOTIFY followed)

public:
    enum Role { RoleId = Qt::UserRole + 1, RoleName, RoleFirst, RoleSecond, RoleState };
    enum Filter { All, Missing, Stale };
    Q_ENUM(Filter)

    explicit HintTableModel(QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    bool isActive() const { return mActive; }
    void setActive(bool active);
    UndoRedo *history() const { return mHistory; }
    void setHistory(UndoRedo *history);
    int allCount() const { return mAllCount; }
    int missingCount() const { return mMissingCount; }
    int staleCount() const { return mStaleCount; }

    /// Shows the rows that match now. The text stands in one of the hints.
    Q_INVOKABLE void setFilter(HintTableModel::Filter filter, const QString &text);
    /// -1 for an item that is not shown.
    Q_INVOKABLE int rowOf(int id) const;
    Q_INVOKABLE int idOf(int row) const;
    /// The hint that the item has now; empty for an id without an item.
    Q_INVOKABLE QString hint(int id, bool second) const;
    /// An edit of the writer's, which is a step of the history.
    Q_INVOKABLE void setHint(int id, bool second, const QString &text);
    /// Whether the item lacks the second hint, or has one that may be wrong; else it is the first one that is missing.
    Q_INVOKABLE bool isSecondToDo(int row) const;
    /// The first row after that one, and round to it, whose hints are missing or stale; -1 if there is none.
    Q_INVOKABLE int nextToDo(int row) const;

Q_SIGNALS:
    void activeChanged();
    /// The rows are those of the document.
    void followed();

private:
    bool matches(const HintRow &row) const;
    static TutorialItemData *record(int id);
    static QString fieldOf(bool second);
    void schedule();
    Q_INVOKABLE void followIfDue();
    void follow();
    void takeRows(const QVector<HintRow> &rows);
    void replaceRows(int first, int last, const QVector<HintRow> &rows);

    UndoRedo *mHistory = nullptr;
    QVector<HintRow> mRows;
    Filter mFilter = All;
    QString mText;
    QStringList mSource; // the tutorial and the second language of the rows
    bool mActive = false;
    bool mDue = false;
    int mAllCount = 0;
    int mMissingCount = 0;
    int mStaleCount = 0;
};
