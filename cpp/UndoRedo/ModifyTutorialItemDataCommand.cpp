#include "UndoRedo/ModifyTutorialItemDataCommand.h"

#include "tool/Log.h"
#include "TutorialEditor/Manager.h"
#include "UndoRedo/PendingJumpLink.h"

namespace
{
QString targetText(const PropertyHash &target)
{
    QStringList entries;
    for (const QString &key : target.keyList())
        entries.append(key + QLatin1Char(':') + target.value(key).toString());
    return entries.join(QLatin1Char(','));
}

const TutorialItemField *fieldOf(const PropertyHash &target)
{
    const TutorialItemField *field = TutorialItemField::find(target.getString(QStringLiteral("target"), QString()));
    const bool isId = field && field->member == TutorialItemField::Member(&TutorialItemData::mId);
    return isId ? nullptr : field;
}
} // namespace

ModifyTutorialItemDataCommand::ModifyTutorialItemDataCommand(int tutorialItemId, const PropertyHash &target,
                                                             const QVariant &value)
    : UndoMergeableCommand(tutorialItemId, fieldOf(target), value)
{
    setText(QStringLiteral("ModifyTutorialItemDataCommand(%1: %2, %3)")
                .arg(QString::number(tutorialItemId), targetText(target), value.toString()));
}

void ModifyTutorialItemDataCommand::applyValue(const Change &change, const QVariant &value, QVariant *oldValue) const
{
    TutorialItemData *record = TutorialEditor::Manager::instance()->mData.getData(change.itemId);
    if (!record) {
        Log::warning("cpp/UndoRedo", "ModifyTutorialItemDataCommand::applyValue", __LINE__)
            << "tutorialItemData not found" << change.itemId;
        return;
    }
    if (!change.field)
        return;
    if (oldValue)
        *oldValue = change.field->read(*record);
    change.field->write(*record, value);
}

void ModifyTutorialItemDataCommand::tell(int itemId) const
{
    setPendingJumpLink(
        JsonWrapper::getJsonString(QVariantHash{ { QStringLiteral("tutorialItemId"), QVariant(itemId) } }));
}
