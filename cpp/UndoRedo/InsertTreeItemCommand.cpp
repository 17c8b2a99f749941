#include "UndoRedo/InsertTreeItemCommand.h"

InsertTreeItemCommand::InsertTreeItemCommand(int targetId, int position, int newId, bool folder, TutorialItemData *data,
                                             const QString &linkInfo, const QVariantMap &option)
    : AddTreeItemCommand(QStringLiteral("InsertTreeItemCommand(%1, %2, %3)").arg(targetId).arg(position).arg(newId),
                         targetId, position, newId, folder, linkInfo, option)
    , mData(data)
{ }
