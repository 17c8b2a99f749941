#pragma once

#include "UndoRedo/TreeCommand.h"

/// Adds an empty folder with a name of its own. The option "newId" gives it that id.
class AddFolderCommand : public TreeCommand
{
public:
    AddFolderCommand(int targetId, int position, const QString &linkInfo, const QVariantMap &option);

    /// Valid once the command has run.
    int newId() const { return mNewId; }

private:
    bool apply() override;
    bool revert() override;

    int mTargetId;
    int mPosition;
    int mNewId = -1;
};
