#pragma once

#include <QVariant>

struct TutorialItemField;

/// What a record's setter and the document ask of the undo history. UndoRedo implements it.
///
/// The last object made is the one that instance() gives, until it is destroyed. Without a history
/// a setter writes its field directly.
class EditHistory
{
public:
    /// The history in force, or null when there is none. Not owned by the caller.
    static EditHistory *instance();

    /// Whether a transaction is open; only then does a setter record its change.
    virtual bool inTransaction() = 0;

    /// Adds the change of one property of one record to the history and carries it out.
    virtual void recordChange(int itemId, const TutorialItemField &field, const QVariant &value) = 0;

    /// Whether any step is held, which may refer to records.
    virtual bool isEmpty() const = 0;

    /// The present state is the saved one.
    virtual void markClean() = 0;

    /// Forgets all steps. The present state counts as saved.
    virtual void clear() = 0;

protected:
    EditHistory();
    virtual ~EditHistory();

private:
    Q_DISABLE_COPY(EditHistory)
};
