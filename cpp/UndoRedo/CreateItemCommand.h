#pragma once

#include "UndoRedo/AddTreeItemCommand.h"

/// Adds an item with all its properties at their defaults. It keeps the id of its first run.
class CreateItemCommand : public AddTreeItemCommand
{
public:
    CreateItemCommand(int targetId, int position, const QString &name, const QString &linkInfo,
                      const QVariantMap &option);

private:
    Record giveRecord() override;

    QString mName;
};
