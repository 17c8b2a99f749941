#include "UndoRedo/CreateItemCommand.h"

CreateItemCommand::CreateItemCommand(int targetId, int position, const QString &name, const QString &linkInfo,
                                     const QVariantMap &option)
    : AddTreeItemCommand(
        QStringLiteral("AddItem(%1, %2, %3)").arg(QString::number(targetId), QString::number(position), name), targetId,
        position, -1, false, linkInfo, option)
    , mName(name)
{ }

CreateItemCommand::Record CreateItemCommand::giveRecord()
{
    Record record = makeRecord();
    record->mName = mName;
    return record;
}
