#include "UndoRedo/AddFolderCommand.h"

#include <QCoreApplication>

AddFolderCommand::AddFolderCommand(int targetId, int position, const QString &linkInfo, const QVariantMap &option)
    : AddTreeItemCommand(QStringLiteral("AddFolder(%1, %2)").arg(targetId).arg(position), targetId, position, -1, true,
                         linkInfo, option)
{ }

int AddFolderCommand::chooseId() const
{
    return DataSupport::getInt(option(), QStringLiteral("newId"), document().getNewId());
}

AddFolderCommand::Record AddFolderCommand::giveRecord()
{
    Record record = makeRecord();
    record->mName = document().getNewName(QCoreApplication::translate("TutorialManager", "folder"), 0);
    return record;
}
