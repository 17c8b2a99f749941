#include "UndoRedo/UndoMergeableCommand.h"

#include "tool/Log.h"
#include "UndoRedo/UndoRedo.h"

namespace
{
constexpr char kFolder[] = "cpp/UndoRedo";
constexpr char kMergeWith[] = "UndoMergeableCommand::mergeWith";
} // namespace

UndoMergeableCommand::UndoMergeableCommand(int itemId, const TutorialItemField *field, const QVariant &value)
    : mChanges({ { itemId, field, value, value } })
{ }

void UndoMergeableCommand::undo()
{
    if (mChanges.size() > 1)
        Log::debug(kFolder, "UndoMergeableCommand::undo", __LINE__) << "do undo before" << mChanges.size() - 1;
    for (auto change = mChanges.crbegin(); change != mChanges.crend(); ++change)
        applyValue(*change, change->oldValue, nullptr);
    tell(mChanges.front().itemId);
}

void UndoMergeableCommand::redo()
{
    if (mChanges.size() > 1)
        Log::debug(kFolder, "UndoMergeableCommand::redo", __LINE__) << "do redo after" << mChanges.size() - 1;
    for (Change &change : mChanges)
        applyValue(change, change.value, &change.oldValue);
    // The first run is the one inside the push.
    if (!mFirstRedo)
        tell(mChanges.back().itemId);
    mFirstRedo = false;
}

bool UndoMergeableCommand::mergeWith(const QUndoCommand *other)
{
    const auto *step = dynamic_cast<const UndoMergeableCommand *>(other);
    const UndoRedo *history = UndoRedo::instance();
    if (!step || !history || !history->isMergeable()) {
        Log::debug(kFolder, kMergeWith, __LINE__) << "unmerged";
        return false;
    }
    for (const Change &change : step->mChanges)
        hold(change);
    return true;
}

void UndoMergeableCommand::takeIn(int itemId, const TutorialItemField &field, const QVariant &value)
{
    Change change{ itemId, &field, value, value };
    applyValue(change, value, &change.oldValue);
    hold(change);
}

void UndoMergeableCommand::hold(const Change &change)
{
    const auto keyOf = [](const Change &held) { return Key(held.itemId, held.field); };
    if (mPositions.isEmpty())
        mPositions.insert(keyOf(mChanges.front()), 0);
    const auto known = mPositions.constFind(keyOf(change));
    if (known != mPositions.constEnd()) {
        const QString text = *known > 0 ? QStringLiteral("merged!") : QStringLiteral("merged(2)");
        Log::debugEachText(kFolder, kMergeWith, __LINE__, { text });
        mChanges[*known].value = change.value;
        return;
    }
    Log::debugEachText(kFolder, kMergeWith, __LINE__, { QStringLiteral("append newCommand to list") });
    mPositions.insert(keyOf(change), mChanges.size());
    mChanges.push_back(change);
}

QSet<int> UndoMergeableCommand::itemIds() const
{
    QSet<int> ids;
    for (const Change &change : mChanges)
        ids.insert(change.itemId);
    return ids;
}
