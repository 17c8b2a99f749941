// Where rows that are dragged in the tree would go.

#include "quick/TreeDropRules.h"
#include "quick/TutorialItemListModel.h"

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
    return { { QStringLiteral("before"), drop.kind == TreeDrop::Before },
             { QStringLiteral("targetId"), drop.targetId },
             { QStringLiteral("folderId"), drop.folderId },
             { QStringLiteral("x"), treeDropX(drop.depth) } };
}
