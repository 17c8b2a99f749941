#pragma once

#include "model/PropertyHash.h"
#include "UndoRedo/UndoMergeableCommand.h"

/// Sets one property of one record.
class ModifyTutorialItemDataCommand : public UndoMergeableCommand
{
public:
    /// The target's entry "target" is the property's name.
    ModifyTutorialItemDataCommand(int tutorialItemId, const PropertyHash &target, const QVariant &value,
                                  const QString &linkInfo);

    using UndoMergeableCommand::mergeWith;

    void doUndo() override;
    void doRedo() override;
    int commandKind() const override { return 1; }
    bool mergeWith(const UndoMergeableCommand *other) override;
    /// False, with nothing changed, for an unknown property, and with a warning in the log for an
    /// item without a record.
    bool applyValue(const QVariant &value, bool saveOld, bool saveNew) override;
    std::unique_ptr<UndoMergeableCommand> clone() const override;
    QString mergeKey() const override;
    int itemId() const override { return mTutorialItemId; }

private:
    int mTutorialItemId;
    // The new value until the first run.
    QVariant mOldValue;
    PropertyHash mTarget;
    QString mLinkInfo;
    bool mFirstRedo = true;
};
