#pragma once

#include <QHash>
#include <QPair>
#include <QSet>
#include <QUndoCommand>
#include <QVariant>

#include <memory>
#include <vector>

/// The base of commands that can stand as one step of the history.
///
/// While merging is allowed, a command takes in any later one: a new value of what it or its list
/// already changes replaces that value, and all else goes into its list as a copy.
class UndoMergeableCommand : public QUndoCommand
{
public:
    ~UndoMergeableCommand() override;

    void undo() override;
    void redo() override;
    /// Any id but -1 makes the stack offer a new command to the one before it.
    int id() const override { return 0; }
    /// Takes in a command that has run already. True when it did: the caller may then destroy it.
    bool mergeWith(const QUndoCommand *other) override;

    virtual void doUndo() = 0;
    virtual void doRedo() = 0;
    virtual int commandKind() const = 0;
    /// Takes over the new value of a command that changes the same; false if it changes another.
    virtual bool mergeWith(const UndoMergeableCommand *other) = 0;
    /// Writes the value to what the command changes. With saveOld the former value becomes the old
    /// one, with saveNew the value becomes the new one. The result is whether it did.
    virtual bool applyValue(const QVariant &value, bool saveOld, bool saveNew) = 0;
    /// A copy without what was merged.
    virtual std::unique_ptr<UndoMergeableCommand> clone() const = 0;
    /// What the command changes, as a text: only commands of one kind and one key can merge.
    virtual QString mergeKey() const = 0;

    /// The item that the command changes.
    virtual int itemId() const = 0;

    QVariant value() const { return mValue; }
    /// The items that the command and all that it has taken in change.
    QSet<int> itemIds() const;

protected:
    explicit UndoMergeableCommand(const QVariant &value);

    QVariant mValue;

private:
    using Key = QPair<int, QString>;

    // In order of arrival. Finding by key keeps a long run of edits linear.
    std::vector<std::unique_ptr<UndoMergeableCommand>> mMergedList;
    QHash<Key, UndoMergeableCommand *> mMergedByKey;
};
