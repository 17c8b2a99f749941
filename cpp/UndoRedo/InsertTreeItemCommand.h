#pragma once

#include "UndoRedo/TreeCommand.h"

/// Puts a record that already exists into the document, with a node without children. Contents of a
/// folder come by commands of their own behind this one.
class InsertTreeItemCommand : public TreeCommand
{
public:
    /// Takes ownership of the record, whose id is newId.
    InsertTreeItemCommand(int targetId, int position, int newId, bool folder, TutorialItemData *data,
                          const QString &linkInfo, const QVariantMap &option);

    QList<int> itemIds() const override { return { mNewId }; }

private:
    bool apply() override;
    bool revert() override;
    bool hasEffect() const override { return !mData; }

    int mTargetId;
    int mPosition;
    int mNewId;
    bool mFolder;
    // The record while it is out of the document.
    std::unique_ptr<TutorialItemData> mData;
};
