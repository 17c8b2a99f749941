#pragma once

#include "UndoRedo/TreeCommand.h"

/// Adds an empty folder with a name of its own. The option "newId" gives it that id.
class AddFolderCommand : public TreeCommand
{
public:
    AddFolderCommand(int targetId, int position, const QString &linkInfo, const QVariantMap &option);

    /// Valid once the command has run.
    int newId() const { return mNewId; }

    QList<int> itemIds() const override { return { mNewId }; }

private:
    bool apply() override;
    bool revert() override;
    bool hasEffect() const override { return mNewId >= 0; }

    int mTargetId;
    int mPosition;
    int mNewId = -1;
};
