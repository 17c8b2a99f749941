#pragma once

#include <QItemSelectionModel>
#include <QList>
#include <QVariantList>

#include <functional>

class QStandardItem;

/// The selection of the tree of tutorial items, read and set as item ids. It keeps no state of its
/// own, but for what is set aside.
///
/// Tree order is depth first, parents before children, through open and closed folders alike.
class TreeListItemSelectionModel : public QItemSelectionModel
{
    Q_OBJECT
    Q_PROPERTY(QVariantList selectedIdList READ getSelectedIdList NOTIFY selectedIdListChanged)

public:
    explicit TreeListItemSelectionModel(QAbstractItemModel *model = nullptr, QObject *parent = nullptr);

    Q_INVOKABLE int getSelectedCount() const;
    /// What is highlighted, in the order of Qt's selection. The root row counts, with id -1.
    Q_INVOKABLE QVariantList getSelectedIdList() const;
    /// What an operation shall act on: in tree order, without the root row and without any item
    /// that stands in a selected folder.
    Q_INVOKABLE QVariantList getTreeSelectedIdList() const;
    Q_INVOKABLE bool hasSelectedFolder() const;
    Q_INVOKABLE QModelIndex getFirstSelectedModelIndex() const;
    /// Leaves the other rows and the current index alone.
    Q_INVOKABLE void toggleSelected(const QModelIndex &modelIndex);
    /// Makes the selection equal to the list; ids without a row are passed over. What stays selected
    /// is never deselected on the way.
    Q_INVOKABLE void setSelectedIdList(const QList<int> &idList);
    /// Selects all rows from the current one to that one, both included, in tree order, and no
    /// others.
    Q_INVOKABLE void setSelectedBetweenCurrentAnd(const QModelIndex &modelIndex);
    /// Selects all rows but the root row.
    Q_INVOKABLE void selectAllItems();
    /// Like setSelectedBetweenCurrentAnd between two children of the root row; the current index is
    /// cleared. Of a known and an unknown id the known one is selected alone.
    Q_INVOKABLE void setSelectedBetween(int id1, int id2);
    /// Without a signal selects nothing until putBack, while rows come and go at many places: for each
    /// of them Qt would look at all that is selected, and tell of what goes.
    Q_INVOKABLE void setAside();
    /// Selects what was set aside and is still there. Tells of it if that is not all.
    Q_INVOKABLE void putBack();

Q_SIGNALS:
    void selectedIdListChanged();

private:
    void onSelectionChanged(const QItemSelection &selected, const QItemSelection &deselected);
    /// Selects the rows below this one that are wanted and no others. The question is asked in tree
    /// order.
    void selectWanted(const QStandardItem &invisibleRoot, const std::function<bool(int id)> &wanted);
    QList<int> selectedIds() const;

    QList<int> mSetAside;
};
