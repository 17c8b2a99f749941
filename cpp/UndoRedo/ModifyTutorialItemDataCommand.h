#pragma once

#include "model/PropertyHash.h"
#include "UndoRedo/UndoMergeableCommand.h"

/// Sets one property of one record.
class ModifyTutorialItemDataCommand : public UndoMergeableCommand
{
public:
    /// The target's entry "target" is the property's name. An unknown one, and "id", have no effect.
    ModifyTutorialItemDataCommand(int tutorialItemId, const PropertyHash &target, const QVariant &value);

private:
    /// A warning in the log for an item without a record.
    void applyValue(const Change &change, const QVariant &value, QVariant *oldValue) const override;
    void tell(int itemId) const override;
};
