#pragma once

#include "UndoRedo/AddTreeItemCommand.h"

/// Adds an empty folder with a name of its own. The option "newId" gives it that id.
class AddFolderCommand : public AddTreeItemCommand
{
public:
    AddFolderCommand(int targetId, int position, const QString &linkInfo, const QVariantMap &option);

private:
    int chooseId() const override;
    Record giveRecord() override;
};
