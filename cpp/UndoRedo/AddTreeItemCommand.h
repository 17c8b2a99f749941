#pragma once

#include "UndoRedo/TreeCommand.h"

/// The base of the commands that put one node without children and its record into the document.
class AddTreeItemCommand : public TreeCommand
{
public:
    /// Valid once the command has run.
    int newId() const { return mNewId; }

    QList<int> itemIds() const override { return { mNewId }; }

protected:
    using Record = std::unique_ptr<TutorialItemData>;

    /// A negative newId is one that is chosen at the run.
    AddTreeItemCommand(const QString &text, int targetId, int position, int newId, bool folder, const QString &linkInfo,
                       const QVariantMap &option);

    /// An empty record of the new id.
    Record makeRecord() const;

private:
    bool apply() override;
    bool revert() override;
    bool hasEffect() const override { return mInDocument; }

    virtual int chooseId() const { return mNewId < 0 ? document().getNewId() : mNewId; }
    /// The record of the new id for the document, and back from there.
    virtual Record giveRecord() = 0;
    virtual void takeRecord(Record) { }

    int mTargetId;
    int mPosition;
    int mNewId;
    bool mFolder;
    bool mInDocument = false;
};
