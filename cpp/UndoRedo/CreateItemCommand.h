#pragma once

#include "UndoRedo/TreeCommand.h"

/// Adds an item with all its properties at their defaults.
class CreateItemCommand : public TreeCommand
{
public:
    CreateItemCommand(int targetId, int position, const QString &name, const QString &linkInfo,
                      const QVariantMap &option);

    /// Valid once the command has run; it keeps this id from then on.
    int newId() const { return mNewId; }

    QList<int> itemIds() const override { return { mNewId }; }

private:
    bool apply() override;
    bool revert() override;
    bool hasEffect() const override { return mNewId >= 0; }

    int mTargetId;
    int mPosition;
    QString mName;
    int mNewId = -1;
};
