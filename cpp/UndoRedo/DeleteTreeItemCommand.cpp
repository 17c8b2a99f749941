#include "UndoRedo/DeleteTreeItemCommand.h"

DeleteTreeItemCommand::DeleteTreeItemCommand(const QList<int> &idList, const QList<int> &allIdList,
                                             const QString &linkInfo, const QVariantMap &option)
    : TreeCommand(QStringLiteral("DeleteTreeItemCommand(%1)").arg(listText(idList)), linkInfo, option)
    , mIdList(idList)
    , mAllIdList(allIdList)
{ }

bool DeleteTreeItemCommand::apply()
{
    mTakenItems = TreeBatch::takeItems(document().mRoot, mAllIdList);
    mDeletedList = TreeBatch::takeRecords(document().mDataList, mAllIdList);
    return true;
}

bool DeleteTreeItemCommand::revert()
{
    const QList<int> missing = TreeBatch::putItems(document().mRoot, mTakenItems);
    mTakenItems.clear();
    TreeBatch::putRecords(document().mDataList, std::move(mDeletedList));
    mDeletedList.clear();
    for (const int parentId : missing)
        Log::warning("cpp/UndoRedo", "DeleteTreeItemCommand::undo", __LINE__) << "treeItem of id not found" << parentId;
    return missing.isEmpty();
}
