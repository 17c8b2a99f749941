#include "UndoRedo/InsertTreeItemCommand.h"

InsertTreeItemCommand::InsertTreeItemCommand(int targetId, int position, int newId, bool folder, TutorialItemData *data,
                                             const QString &linkInfo, const QVariantMap &option)
    : TreeCommand(QStringLiteral("InsertTreeItemCommand(%1, %2, %3)").arg(targetId).arg(position).arg(newId), linkInfo,
                  option)
    , mTargetId(targetId)
    , mPosition(position)
    , mNewId(newId)
    , mFolder(folder)
    , mData(data)
{ }

bool InsertTreeItemCommand::apply()
{
    if (!insertAt(mTargetId, mPosition, Item(mNewId, mFolder)))
        return false;
    document().mDataList.append(mData.release());
    return true;
}

bool InsertTreeItemCommand::revert()
{
    document().removeItem(mNewId);
    mData = document().takeData(mNewId);
    return true;
}
