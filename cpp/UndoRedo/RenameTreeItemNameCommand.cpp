#include "UndoRedo/RenameTreeItemNameCommand.h"

namespace
{
constexpr char kFolder[] = "cpp/UndoRedo";
}

RenameTreeItemNameCommand::RenameTreeItemNameCommand(int id, const QString &name, const QString &linkInfo,
                                                     const QVariantMap &option)
    : TreeCommand(QStringLiteral("RenameTreeItemName(%1, %2)").arg(QString::number(id), name), linkInfo, option)
    , mId(id)
    , mNewName(name)
{
    if (const TutorialItemData *record = document().getData(id))
        mOldName = record->mName;
    else
        Log::warning(kFolder, "RenameTreeItemNameCommand::RenameTreeItemNameCommand", __LINE__)
            << "tutorialItemData not found" << id;
}

bool RenameTreeItemNameCommand::apply()
{
    // Past the setter, which would make a command of its own.
    if (TutorialItemData *record = document().getData(mId))
        record->mName = mNewName;
    else
        Log::warning(kFolder, "RenameTreeItemNameCommand::redo", __LINE__) << "sceneData not found" << mId;
    return true;
}

bool RenameTreeItemNameCommand::hasEffect() const
{
    return document().getData(mId) != nullptr;
}

bool RenameTreeItemNameCommand::revert()
{
    if (TutorialItemData *record = document().getData(mId))
        record->mName = mOldName;
    else
        Log::warning(kFolder, "RenameTreeItemNameCommand::undo", __LINE__) << "tutorialItemData not found" << mId;
    return true;
}
