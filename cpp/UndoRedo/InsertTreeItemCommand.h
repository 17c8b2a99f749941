#pragma once

#include "UndoRedo/AddTreeItemCommand.h"

/// Puts a record that already exists into the document, with a node without children. Contents of a
/// folder come by commands of their own after this one.
class InsertTreeItemCommand : public AddTreeItemCommand
{
public:
    /// Takes ownership of the record, whose id is newId.
    InsertTreeItemCommand(int targetId, int position, int newId, bool folder, TutorialItemData *data,
                          const QString &linkInfo, const QVariantMap &option);

private:
    Record giveRecord() override { return std::move(mData); }
    void takeRecord(Record record) override { mData = std::move(record); }

    // The record while it is out of the document.
    Record mData;
};
