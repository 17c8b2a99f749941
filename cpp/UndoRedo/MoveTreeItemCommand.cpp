#include "UndoRedo/MoveTreeItemCommand.h"

#include <QHash>

namespace
{
constexpr char kFolder[] = "cpp/UndoRedo";
}

MoveTreeItemCommand::MoveTreeItemCommand(const QList<int> &idList, bool before, int targetId, const QString &linkInfo,
                                         const QVariantMap &option)
    : TreeCommand(QStringLiteral("MoveTreeItemCommand(%1, %2, %3)")
                      .arg(listText(idList))
                      .arg(static_cast<int>(before))
                      .arg(targetId),
                  linkInfo, option)
    , mIdList(idList)
    , mBefore(before)
    , mTargetId(targetId)
{ }

QList<int> MoveTreeItemCommand::movableIds() const
{
    Document &data = document();
    int index = -1;
    const Item *targetFound = mBefore ? data.getParentItem(mTargetId, index) : data.findItem(mTargetId);
    const QSet<int> lostWithTarget = idSet(data.getPathIds(mTargetId));
    QList<int> movable;
    for (const int id : qAsConst(mIdList)) {
        if (!data.getParentItem(id, index)) {
            Log::warning(kFolder, "MoveTreeItemCommand::redo", __LINE__) << "parent of id not found" << id;
            break;
        }
        if (!targetFound || lostWithTarget.contains(id)) {
            Log::warning(kFolder, "MoveTreeItemCommand::redo", __LINE__)
                << "parent of mTargetId not found" << mTargetId;
            break;
        }
        movable.append(id);
    }
    return movable;
}

bool MoveTreeItemCommand::apply()
{
    Document &data = document();
    const QList<int> movable = movableIds();
    const QList<TakenItem<TutorialItemData>> taken = TreeBatch::takeItems(data.mRoot, movable);
    mOriginList.clear();
    QHash<int, Item> items;
    for (const TakenItem<TutorialItemData> &entry : taken) {
        mOriginList.append({ entry.item.mId, entry.parentId, entry.index });
        items.insert(entry.item.mId, entry.item);
    }

    // The target's place counts without the moved items that stood before it.
    int index = -1;
    const Item *parent = mBefore ? data.getParentItem(mTargetId, index) : data.findItem(mTargetId);
    QList<TakenItem<TutorialItemData>> placed;
    // An id that comes twice ends where its last move takes it.
    for (auto id = movable.crbegin(); parent && id != movable.crend(); ++id) {
        if (items.contains(*id))
            placed.prepend({ items.take(*id), parent->mId, 0 });
    }
    if (!mBefore && parent)
        index = parent->mChildren.size();
    for (TakenItem<TutorialItemData> &entry : placed)
        entry.index = index++;
    TreeBatch::putItems(data.mRoot, placed);
    return movable.size() == mIdList.size();
}

bool MoveTreeItemCommand::revert()
{
    Document &data = document();
    QList<int> idList;
    for (const Origin &origin : qAsConst(mOriginList))
        idList.append(origin.id);
    QHash<int, Item> items;
    for (const TakenItem<TutorialItemData> &entry : TreeBatch::takeItems(data.mRoot, idList))
        items.insert(entry.item.mId, entry.item);

    bool complete = true;
    QList<TakenItem<TutorialItemData>> placed;
    for (const Origin &origin : qAsConst(mOriginList)) {
        if (items.contains(origin.id)) {
            placed.append({ items.take(origin.id), origin.parentId, origin.index });
            continue;
        }
        Log::warning(kFolder, "MoveTreeItemCommand::undo", __LINE__) << "parent of id not found" << origin.id;
        complete = false;
    }
    for (const int parentId : TreeBatch::putItems(data.mRoot, placed)) {
        Log::warning(kFolder, "MoveTreeItemCommand::undo", __LINE__) << "treeItem of id not found" << parentId;
        complete = false;
    }
    return complete;
}
