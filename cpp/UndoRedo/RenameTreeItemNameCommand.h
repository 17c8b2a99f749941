#pragma once

#include "UndoRedo/TreeCommand.h"

/// Gives an item another name.
class RenameTreeItemNameCommand : public TreeCommand
{
public:
    RenameTreeItemNameCommand(int id, const QString &name, const QString &linkInfo, const QVariantMap &option);

    QList<int> itemIds() const override { return { mId }; }

private:
    bool apply() override;
    bool revert() override;
    bool hasEffect() const override;

    int mId;
    QString mNewName;
    QString mOldName;
};
