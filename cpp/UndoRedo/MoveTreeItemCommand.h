#pragma once

#include "model/TreeBatch.h"
#include "UndoRedo/TreeCommand.h"

/// Moves items, each with all below it, before another item or to the end of a folder. Only the shape
/// changes; the order of the record list stays.
///
/// The items move one after the other: the first that has no place to go (its target is unknown, is
/// the item itself or stands below it) stays where it is, and so do all after it.
class MoveTreeItemCommand : public TreeCommand
{
public:
    /// With before the items go before the target, else to the end of the folder targetId.
    MoveTreeItemCommand(const QList<int> &idList, bool before, int targetId, const QString &linkInfo,
                        const QVariantMap &option);

    QList<int> itemIds() const override { return mIdList; }

private:
    struct Origin
    {
        int id;
        int parentId;
        int index;
    };

    bool apply() override;
    bool revert() override;
    bool hasEffect() const override { return !mOriginList.isEmpty(); }

    /// The ids that can move, in order, up to the first that can't.
    QList<int> movableIds() const;

    QList<int> mIdList;
    bool mBefore;
    int mTargetId;
    QList<Origin> mOriginList;
};
