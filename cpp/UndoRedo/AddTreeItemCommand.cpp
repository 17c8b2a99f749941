#include "UndoRedo/AddTreeItemCommand.h"

AddTreeItemCommand::AddTreeItemCommand(const QString &text, int targetId, int position, int newId, bool folder,
                                       const QString &linkInfo, const QVariantMap &option)
    : TreeCommand(text, linkInfo, option)
    , mTargetId(targetId)
    , mPosition(position)
    , mNewId(newId)
    , mFolder(folder)
{ }

AddTreeItemCommand::Record AddTreeItemCommand::makeRecord() const
{
    auto record = std::make_unique<TutorialItemData>();
    record->mId = mNewId;
    return record;
}

bool AddTreeItemCommand::apply()
{
    const int newId = chooseId();
    mInDocument = insertAt(mTargetId, mPosition, Item(newId, mFolder));
    if (!mInDocument)
        return false;
    mNewId = newId;
    document().mDataList.append(giveRecord().release());
    return true;
}

bool AddTreeItemCommand::revert()
{
    document().removeItem(mNewId);
    takeRecord(document().takeData(mNewId));
    return true;
}
