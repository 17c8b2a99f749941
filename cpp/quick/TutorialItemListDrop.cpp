// Where rows that are dragged in the tree, or moved by keys, would go.

#include "quick/TreeDropRules.h"
#include "quick/TutorialItemListModel.h"
#include "tool/IdSet.h"

namespace
{
using Model = TutorialItemListModel;

TreeDropRow dropRow(const QModelIndex &index)
{
    TreeDropRow row;
    row.folder = index.data(Model::RoleFolder).toBool();
    for (QModelIndex step = index; step.isValid(); step = step.parent())
        row.path.append(step.data(Model::RoleId).toInt());
    return row;
}

void collectRows(const QModelIndex &index, QHash<int, TreeDropRow> &wanted)
{
    const auto hit = wanted.find(index.data(Model::RoleId).toInt());
    if (hit != wanted.end())
        *hit = dropRow(index);
    for (int i = 0; i < index.model()->rowCount(index); ++i)
        collectRows(index.model()->index(i, 0, index), wanted);
}

int idOf(const QStandardItem &row)
{
    return row.data(Model::RoleId).toInt();
}

/// The nearest neighbour of a row in its folder, upwards or downwards, that does not move itself.
const QStandardItem *neighbour(const QStandardItem &row, int direction, const QSet<int> &moved)
{
    const QStandardItem *folder = row.parent();
    if (!folder)
        return nullptr;
    int place = row.row() + direction;
    while (folder->child(place) && moved.contains(idOf(*folder->child(place))))
        place += direction;
    return folder->child(place);
}

TreeDrop before(const QStandardItem &row)
{
    TreeDrop drop;
    drop.kind = TreeDrop::Before;
    drop.targetId = idOf(row);
    drop.folderId = idOf(*row.parent());
    return drop;
}

TreeDrop atEndOf(const QStandardItem &folder)
{
    TreeDrop drop;
    drop.kind = TreeDrop::Into;
    drop.targetId = drop.folderId = idOf(folder);
    return drop;
}

TreeDrop after(const QStandardItem &row, const QSet<int> &moved)
{
    const QStandardItem *next = neighbour(row, 1, moved);
    return next ? before(*next) : atEndOf(*row.parent());
}

/// Into the folder above the rows, as its last ones, else into the one below, as its first ones.
TreeDrop into(const QStandardItem *above, const QStandardItem *below)
{
    const auto isFolder = [](const QStandardItem *row) { return row && row->data(Model::RoleFolder).toBool(); };
    if (isFolder(above))
        return atEndOf(*above);
    if (!isFolder(below))
        return {};
    return below->hasChildren() ? before(*below->child(0)) : atEndOf(*below);
}

TreeDrop decideStep(const QStandardItem &first, const QStandardItem &last, Model::Step step, const QSet<int> &moved)
{
    const QStandardItem *above = neighbour(first, -1, moved);
    const QStandardItem *below = neighbour(last, 1, moved);
    const QStandardItem *folder = first.parent();
    switch (step) {
    case Model::StepUp:
        return above ? before(*above) : TreeDrop();
    case Model::StepDown:
        return below ? after(*below, moved) : TreeDrop();
    case Model::StepIn:
        return into(above, below);
    case Model::StepOut:
        return folder && folder->parent() ? after(*folder, moved) : TreeDrop();
    }
    return {};
}

QVariantMap place(const TreeDrop &drop)
{
    return { { QStringLiteral("before"), drop.kind == TreeDrop::Before },
             { QStringLiteral("targetId"), drop.targetId },
             { QStringLiteral("folderId"), drop.folderId } };
}
} // namespace

QVariantMap TutorialItemListModel::calcDrop(const QList<int> &idList, const QModelIndex &indexUp,
                                            const QModelIndex &indexLow, qreal x) const
{
    if (idList.isEmpty() || !indexUp.isValid())
        return {};
    QHash<int, TreeDropRow> dragged;
    for (const int id : idList)
        dragged.insert(id, {});
    collectRows(getRootIndex(), dragged);

    const TreeDropRow up = dropRow(indexUp);
    const TreeDropRow low = dropRow(indexLow);
    TreeDrop drop;
    for (const int id : idList) {
        const TreeDropRow row = dragged.value(id);
        if (!row.exists())
            return {};
        drop = decideTreeDrop(row, up, low, treeDropDepthAt(x));
        if (drop.kind == TreeDrop::Refused)
            return {};
    }
    QVariantMap result = place(drop);
    result.insert(QStringLiteral("x"), treeDropX(drop.depth));
    return result;
}

QVariantMap TutorialItemListModel::calcStep(const QList<int> &idList, Step step) const
{
    const QStandardItem *first = idList.isEmpty() ? nullptr : findItemById(idList.first());
    const QStandardItem *last = idList.isEmpty() ? nullptr : findItemById(idList.last());
    if (!first || !last || !first->parent() || !last->parent())
        return {};
    const TreeDrop drop = decideStep(*first, *last, step, idSet(idList));
    return drop.kind == TreeDrop::Refused ? QVariantMap() : place(drop);
}
