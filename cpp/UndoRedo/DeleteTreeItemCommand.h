#pragma once

#include "model/TreeBatch.h"
#include "UndoRedo/TreeCommand.h"

/// Takes items and folders with their contents out of the document. While they are out, the command
/// owns their records; an undo gives back the same objects, in the old order of the record list.
class DeleteTreeItemCommand : public TreeCommand
{
public:
    /// allIdList holds the ids of idList with all their contents.
    DeleteTreeItemCommand(const QList<int> &idList, const QList<int> &allIdList, const QString &linkInfo,
                          const QVariantMap &option);

    QList<int> itemIds() const override { return mIdList; }

private:
    bool apply() override;
    bool revert() override;
    bool hasEffect() const override { return !mTakenItems.isEmpty(); }

    QList<int> mIdList;
    QList<int> mAllIdList;
    QList<TakenItem<TutorialItemData>> mTakenItems;
    std::vector<TakenRecord<TutorialItemData>> mDeletedList;
};
