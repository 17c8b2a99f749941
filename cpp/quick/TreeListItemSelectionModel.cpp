#include "quick/TreeListItemSelectionModel.h"

#include "quick/TutorialItemListModel.h"
#include "tool/IdSet.h"
#include "tool/Log.h"

#include <QSignalBlocker>

#include <algorithm>

namespace
{
constexpr char kFolder[] = "cpp/quick";

int idOf(const QStandardItem &row)
{
    return row.data(TutorialItemListModel::RoleId).toInt();
}

/// Appends the wanted ids at or below the row, in tree order, and nothing below one of them.
void collectTops(const QStandardItem &row, const QSet<int> &wanted, QVariantList &tops)
{
    const int id = idOf(row);
    if (wanted.contains(id)) {
        tops.append(id);
        return;
    }
    for (int i = 0; i < row.rowCount(); ++i)
        collectTops(*row.child(i), wanted, tops);
}

/// A selection of rows in tree order. Siblings that follow one another in that order share a range.
class TreeOrderSelection
{
public:
    void append(const QModelIndex &index)
    {
        mIndexes.append(index);
        if (mLast.isValid() && index.row() == mLast.row() + 1 && index.parent() == mLast.parent()) {
            mLast = index;
            return;
        }
        finish();
        mFirst = mLast = index;
    }

    QItemSelection finish()
    {
        if (mFirst.isValid())
            mSelection.append(QItemSelectionRange(mFirst, mLast));
        mFirst = mLast = QModelIndex();
        return mSelection;
    }

    const QModelIndexList &indexes() const { return mIndexes; }

private:
    QModelIndexList mIndexes;
    QItemSelection mSelection;
    QModelIndex mFirst;
    QModelIndex mLast;
};

QSet<QModelIndex> indexSet(const QModelIndexList &indexes)
{
    QSet<QModelIndex> set;
    for (const QModelIndex &index : indexes)
        set.insert(index);
    return set;
}

void appendWanted(const QStandardItem &parentRow, const QModelIndex &parentIndex, const QAbstractItemModel &model,
                  const std::function<bool(int id)> &wanted, TreeOrderSelection &selection)
{
    for (int i = 0; i < parentRow.rowCount(); ++i) {
        const QStandardItem &row = *parentRow.child(i);
        const QModelIndex index = model.index(i, 0, parentIndex);
        if (wanted(idOf(row)))
            selection.append(index);
        if (row.hasChildren())
            appendWanted(row, index, model, wanted, selection);
    }
}
} // namespace

TreeListItemSelectionModel::TreeListItemSelectionModel(QAbstractItemModel *model, QObject *parent)
    : QItemSelectionModel(model, parent)
{
    connect(this, &QItemSelectionModel::selectionChanged, this, &TreeListItemSelectionModel::onSelectionChanged);
}

void TreeListItemSelectionModel::onSelectionChanged(const QItemSelection &, const QItemSelection &)
{
    Q_EMIT selectedIdListChanged();
}

int TreeListItemSelectionModel::getSelectedCount() const
{
    return selectedIndexes().size();
}

bool TreeListItemSelectionModel::hasSelectedFolder() const
{
    const QModelIndexList indexes = selectedIndexes();
    return std::any_of(indexes.cbegin(), indexes.cend(), [](const QModelIndex &index) {
        return index.data(TutorialItemListModel::RoleId).toInt() >= 0
            && index.data(TutorialItemListModel::RoleFolder).toBool();
    });
}

QVariantList TreeListItemSelectionModel::getSelectedIdList() const
{
    QVariantList idList;
    if (!qobject_cast<const QStandardItemModel *>(model())) {
        Log::warning(kFolder, "TreeListItemSelectionModel::getSelectedIdList", __LINE__)
            << "QStandardItemModel not found" << model();
        return idList;
    }
    for (const int id : selectedIds())
        idList.append(id);
    return idList;
}

QVariantList TreeListItemSelectionModel::getTreeSelectedIdList() const
{
    QVariantList idList;
    const auto *items = qobject_cast<const TutorialItemListModel *>(model());
    if (!items) {
        Log::warning(kFolder, "TreeListItemSelectionModel::getTreeSelectedIdList", __LINE__)
            << "QStandardItemModel not found" << model();
        return idList;
    }
    QSet<int> selected;
    for (const QModelIndex &index : selectedIndexes()) {
        const int id = index.data(TutorialItemListModel::RoleId).toInt();
        if (id >= 0)
            selected.insert(id);
    }
    if (!selected.isEmpty())
        collectTops(*items->getRootItem(), selected, idList);
    return idList;
}

QModelIndex TreeListItemSelectionModel::getFirstSelectedModelIndex() const
{
    const QModelIndexList indexes = selectedIndexes();
    if (indexes.isEmpty() || !qobject_cast<const QStandardItemModel *>(model()))
        return QModelIndex();
    return indexes.first();
}

void TreeListItemSelectionModel::toggleSelected(const QModelIndex &modelIndex)
{
    select(modelIndex, isSelected(modelIndex) ? Deselect : Select);
}

void TreeListItemSelectionModel::selectWanted(const QStandardItem &invisibleRoot,
                                              const std::function<bool(int id)> &wanted)
{
    const QModelIndexList selectedNow = selectedIndexes();
    const QSet<QModelIndex> before = indexSet(selectedNow);
    // The question is to be asked of each row but once.
    TreeOrderSelection all;
    appendWanted(invisibleRoot, QModelIndex(), *model(), wanted, all);
    const QSet<QModelIndex> after = indexSet(all.indexes());
    if (after == before)
        return;
    TreeOrderSelection gone;
    for (const QModelIndex &index : selectedNow) {
        if (!after.contains(index))
            gone.append(index);
    }
    TreeOrderSelection come;
    for (const QModelIndex &index : all.indexes()) {
        if (!before.contains(index))
            come.append(index);
    }
    {
        // Qt compares each range that comes or goes with each that stands. So for a moment, which
        // nobody is told of, none stands.
        const QSignalBlocker blocker(this);
        clearSelection();
        select(all.finish(), Select);
    }
    Q_EMIT selectionChanged(come.finish(), gone.finish());
}

void TreeListItemSelectionModel::setSelectedIdList(const QList<int> &idList)
{
    const auto *items = qobject_cast<const QStandardItemModel *>(model());
    if (!items)
        return;
    const QSet<int> ids = idSet(idList);
    selectWanted(*items->invisibleRootItem(), [&ids](int id) { return ids.contains(id); });
}

void TreeListItemSelectionModel::selectAllItems()
{
    if (const auto *items = qobject_cast<const QStandardItemModel *>(model()))
        selectWanted(*items->invisibleRootItem(), [](int id) { return id >= 0; });
}

void TreeListItemSelectionModel::setSelectedBetweenCurrentAnd(const QModelIndex &modelIndex)
{
    constexpr char function[] = "TreeListItemSelectionModel::setSelectedBetweenCurrentAnd";
    const auto *items = qobject_cast<const QStandardItemModel *>(model());
    if (!items) {
        Log::warning(kFolder, function, __LINE__) << "QStandardItemModel not found" << model();
        return;
    }
    const bool currentFirst = currentIndex().row() <= modelIndex.row();
    const QModelIndex modelIndex1 = currentFirst ? currentIndex() : modelIndex;
    const QModelIndex modelIndex2 = currentFirst ? modelIndex : currentIndex();
    const QStandardItem *row1 = items->itemFromIndex(modelIndex1);
    if (!row1) {
        Log::warning(kFolder, function, __LINE__) << "modelIndex1 not found" << modelIndex1;
        return;
    }
    const QStandardItem *row2 = items->itemFromIndex(modelIndex2);
    if (!row2) {
        Log::warning(kFolder, function, __LINE__) << "modelIndex2 not found" << modelIndex2;
        return;
    }
    const int id1 = idOf(*row1);
    const int id2 = idOf(*row2);
    bool inRange = false;
    selectWanted(*items->invisibleRootItem(), [&inRange, id1, id2](int id) {
        const bool atEnd = id == id1 || id == id2;
        const bool wanted = inRange || atEnd;
        if (atEnd && id1 != id2)
            inRange = !inRange;
        return wanted;
    });
}

void TreeListItemSelectionModel::setSelectedBetween(int id1, int id2)
{
    clear();
    const auto *items = qobject_cast<const TutorialItemListModel *>(model());
    if (!items)
        return;
    const QStandardItem *root = items->getRootItem();
    int row1 = -1;
    int row2 = -1;
    for (int i = 0; i < root->rowCount(); ++i) {
        const int id = idOf(*root->child(i));
        if (id == id1)
            row1 = i;
        if (id == id2)
            row2 = i;
    }
    const int first = row1 < 0 || row2 < 0 ? qMax(row1, row2) : qMin(row1, row2);
    const int last = qMax(row1, row2);
    if (last >= 0)
        select(QItemSelection(root->child(first)->index(), root->child(last)->index()), Select);
}

QList<int> TreeListItemSelectionModel::selectedIds() const
{
    QList<int> ids;
    for (const QModelIndex &index : selectedIndexes())
        ids.append(index.data(TutorialItemListModel::RoleId).toInt());
    return ids;
}

void TreeListItemSelectionModel::setAside()
{
    mSetAside = selectedIds();
    const QSignalBlocker blocker(this);
    clearSelection();
}

void TreeListItemSelectionModel::putBack()
{
    if (mSetAside.isEmpty())
        return;
    {
        const QSignalBlocker blocker(this);
        setSelectedIdList(mSetAside);
    }
    if (idSet(selectedIds()) != idSet(mSetAside))
        Q_EMIT selectionChanged(selection(), QItemSelection());
    mSetAside.clear();
}
