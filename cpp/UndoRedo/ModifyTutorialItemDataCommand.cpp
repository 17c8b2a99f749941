#include "UndoRedo/ModifyTutorialItemDataCommand.h"

#include "tool/Log.h"
#include "TutorialEditor/Manager.h"
#include "UndoRedo/PendingJumpLink.h"
#include "UndoRedo/UndoRedo.h"

namespace
{
QString targetText(const PropertyHash &target)
{
    QStringList entries;
    for (const QString &key : target.keyList())
        entries.append(key + QLatin1Char(':') + target.value(key).toString());
    return entries.join(QLatin1Char(','));
}
} // namespace

ModifyTutorialItemDataCommand::ModifyTutorialItemDataCommand(int tutorialItemId, const PropertyHash &target,
                                                             const QVariant &value, const QString &linkInfo)
    : UndoMergeableCommand(value)
    , mTutorialItemId(tutorialItemId)
    , mOldValue(value)
    , mTarget(target)
    , mLinkInfo(linkInfo)
{
    setText(QStringLiteral("ModifyTutorialItemDataCommand(%1: %2, %3)")
                .arg(QString::number(tutorialItemId), targetText(target), value.toString()));
}

void ModifyTutorialItemDataCommand::doRedo()
{
    applyValue(mValue, true, false);
    if (mFirstRedo)
        mFirstRedo = false;
    else if (!mLinkInfo.isEmpty())
        setPendingJumpLink(mLinkInfo);
}

void ModifyTutorialItemDataCommand::doUndo()
{
    applyValue(mOldValue, false, false);
    if (!mLinkInfo.isEmpty())
        setPendingJumpLink(mLinkInfo);
}

bool ModifyTutorialItemDataCommand::mergeWith(const UndoMergeableCommand *other)
{
    const UndoRedo *history = UndoRedo::instance();
    const auto *change = dynamic_cast<const ModifyTutorialItemDataCommand *>(other);
    if (!history || !history->isMergeable() || !change)
        return false;
    if (change->mTutorialItemId != mTutorialItemId || change->mTarget != mTarget)
        return false;
    return applyValue(change->mValue, false, true);
}

bool ModifyTutorialItemDataCommand::applyValue(const QVariant &value, bool saveOld, bool saveNew)
{
    TutorialItemData *record = TutorialEditor::Manager::instance()->mData.getData(mTutorialItemId);
    if (!record) {
        Log::warning("cpp/UndoRedo", "ModifyTutorialItemDataCommand::applyValue", __LINE__)
            << "tutorialItemData not found" << mTutorialItemId;
        return false;
    }
    QVariant oldValue;
    if (!record->writeField(mTarget.getString(QStringLiteral("target"), QString()), value, oldValue))
        return false;
    if (saveOld)
        mOldValue = oldValue;
    if (saveNew)
        mValue = value;
    return saveNew;
}

std::unique_ptr<UndoMergeableCommand> ModifyTutorialItemDataCommand::clone() const
{
    auto copy = std::make_unique<ModifyTutorialItemDataCommand>(mTutorialItemId, mTarget, mValue, mLinkInfo);
    copy->mOldValue = mOldValue;
    copy->mFirstRedo = mFirstRedo;
    return copy;
}

QString ModifyTutorialItemDataCommand::mergeKey() const
{
    return QString::number(mTutorialItemId) + QLatin1Char(':') + targetText(mTarget);
}
