#include "UndoRedo/AddFolderCommand.h"

#include <QCoreApplication>

AddFolderCommand::AddFolderCommand(int targetId, int position, const QString &linkInfo, const QVariantMap &option)
    : TreeCommand(QStringLiteral("AddFolder(%1, %2)").arg(targetId).arg(position), linkInfo, option)
    , mTargetId(targetId)
    , mPosition(position)
{ }

bool AddFolderCommand::apply()
{
    Document &data = document();
    const int newId = DataSupport::getInt(option(), QStringLiteral("newId"), data.getNewId());
    if (!insertAt(mTargetId, mPosition, Item(newId, true)))
        return false;
    mNewId = newId;
    auto record = std::make_unique<TutorialItemData>();
    record->mId = mNewId;
    record->mName = data.getNewName(QCoreApplication::translate("TutorialManager", "folder"), 0);
    data.mDataList.append(record.release());
    return true;
}

bool AddFolderCommand::revert()
{
    document().removeItem(mNewId);
    document().takeData(mNewId);
    return true;
}
