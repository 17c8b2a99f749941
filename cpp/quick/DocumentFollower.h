#pragma once

#include <QList>
#include <QObject>
#include <QPointer>

class TutorialItemListModel;
class UndoRedo;

/// Brings what the screen shows in line with the document, once in a turn of the event loop,
/// whichever step of the history has changed it.
class DocumentFollower : public QObject
{
    Q_OBJECT
    Q_PROPERTY(UndoRedo *history READ history WRITE setHistory)
    Q_PROPERTY(TutorialItemListModel *model READ model WRITE setModel)

public:
    explicit DocumentFollower(QObject *parent = nullptr);

    UndoRedo *history() const { return mHistory; }
    void setHistory(UndoRedo *history);
    TutorialItemListModel *model() const { return mModel; }
    void setModel(TutorialItemListModel *model);

    /// The document may have changed: follow in the next turn of the event loop.
    Q_INVOKABLE void schedule();
    /// Follows at once if that is due, for who goes on with the rows, also in an open sequence.
    Q_INVOKABLE void follow();

Q_SIGNALS:
    /// The rows are those of the document, with all that they show.
    void rowsFollowed();
    /// The shape of the tree or a name in it is another one than at the last time.
    void treeChanged();
    /// The rows are in line. After a step back or forth come the ids of the rows that show best what
    /// it did: the items that it is about, or the neighbour of where they were. They may be none.
    void followed(const QList<int> &showIds);

private:
    void onStepped(const QList<int> &itemIds, bool back);
    void onTreeChanged() { mTreeChanged = true; }
    void onDataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight, const QVector<int> &roles);
    /// Asked while the rows are still the old ones.
    QList<int> idsToShow() const;

    QPointer<UndoRedo> mHistory;
    QPointer<TutorialItemListModel> mModel;
    QList<int> mSteppedIds;
    bool mSteppedBack = false;
    bool mDue = false;
    bool mTreeChanged = false;
};
