#include "UndoRedo/CreateItemCommand.h"

CreateItemCommand::CreateItemCommand(int targetId, int position, const QString &name, const QString &linkInfo,
                                     const QVariantMap &option)
    : TreeCommand(QStringLiteral("AddItem(%1, %2, %3)").arg(QString::number(targetId), QString::number(position), name),
                  linkInfo, option)
    , mTargetId(targetId)
    , mPosition(position)
    , mName(name)
{ }

bool CreateItemCommand::apply()
{
    Document &data = document();
    const int newId = mNewId < 0 ? data.getNewId() : mNewId;
    if (!insertAt(mTargetId, mPosition, Item(newId, false)))
        return false;
    mNewId = newId;
    auto record = std::make_unique<TutorialItemData>();
    record->mId = mNewId;
    record->mName = mName;
    data.mDataList.append(record.release());
    return true;
}

bool CreateItemCommand::revert()
{
    document().removeItem(mNewId);
    document().takeData(mNewId);
    return true;
}
