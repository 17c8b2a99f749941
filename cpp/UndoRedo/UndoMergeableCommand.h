#pragma once

#include <QHash>
#include <QPair>
#include <QSet>
#include <QUndoCommand>
#include <QVariant>

#include <vector>

struct TutorialItemField;

/// The base of commands that can stand as one step of the history.
///
/// While merging is allowed, a command takes in any later change: a new value of what it already
/// changes replaces that value, and all else is held after what it holds. So a change that is taken
/// in needs no command of its own.
class UndoMergeableCommand : public QUndoCommand
{
public:
    struct Change
    {
        int itemId;
        // Null for a change without effect.
        const TutorialItemField *field;
        QVariant value;
        QVariant oldValue;
    };

    void undo() override;
    void redo() override;
    /// Any id but -1 makes the stack offer a new command to the one before it.
    int id() const override { return 0; }
    /// Takes in a command that has run already. True when it did: the caller may then destroy it.
    bool mergeWith(const QUndoCommand *other) override;

    /// Carries the change out, and takes it in.
    void takeIn(int itemId, const TutorialItemField &field, const QVariant &value);

    /// The items that the command and all that it has taken in change.
    QSet<int> itemIds() const;

protected:
    UndoMergeableCommand(int itemId, const TutorialItemField *field, const QVariant &value);

private:
    using Key = QPair<int, const TutorialItemField *>;

    /// Writes the value to what the change is about. The former one goes into oldValue, if that is
    /// not null.
    virtual void applyValue(const Change &change, const QVariant &value, QVariant *oldValue) const = 0;
    /// Tells the screens that a change of that item was made or taken back.
    virtual void tell(int itemId) const = 0;

    void hold(const Change &change);

    // In order of arrival, with their positions once there are several. Finding a change by its key
    // keeps a long run of edits linear.
    std::vector<Change> mChanges;
    QHash<Key, std::size_t> mPositions;
    bool mFirstRedo = true;
};
