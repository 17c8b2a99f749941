#include "UndoRedo/UndoMergeableCommand.h"

#include "tool/Log.h"
#include "UndoRedo/UndoRedo.h"

namespace
{
constexpr char kFolder[] = "cpp/UndoRedo";
}

UndoMergeableCommand::UndoMergeableCommand(const QVariant &value) : mValue(value) { }

UndoMergeableCommand::~UndoMergeableCommand() = default;

void UndoMergeableCommand::undo()
{
    if (!mMergedList.empty())
        Log::debug(kFolder, "UndoMergeableCommand::undo", __LINE__) << "do undo before" << mMergedList.size();
    for (auto command = mMergedList.rbegin(); command != mMergedList.rend(); ++command)
        (*command)->doUndo();
    doUndo();
}

void UndoMergeableCommand::redo()
{
    if (!mMergedList.empty())
        Log::debug(kFolder, "UndoMergeableCommand::redo", __LINE__) << "do redo after" << mMergedList.size();
    doRedo();
    for (const auto &command : mMergedList)
        command->doRedo();
}

QSet<int> UndoMergeableCommand::itemIds() const
{
    QSet<int> ids{ itemId() };
    for (const auto &command : mMergedList)
        ids.insert(command->itemId());
    return ids;
}

bool UndoMergeableCommand::mergeWith(const QUndoCommand *other)
{
    const auto *change = dynamic_cast<const UndoMergeableCommand *>(other);
    const UndoRedo *history = UndoRedo::instance();
    if (!change || !history || !history->isMergeable()) {
        Log::debug(kFolder, "UndoMergeableCommand::mergeWith", __LINE__) << "unmerged";
        return false;
    }
    const Key key(change->commandKind(), change->mergeKey());
    UndoMergeableCommand *merged = mMergedByKey.value(key);
    if (merged && merged->mergeWith(change)) {
        Log::debug(kFolder, "UndoMergeableCommand::mergeWith", __LINE__) << "merged!";
        return true;
    }
    if (mergeWith(change)) {
        Log::debug(kFolder, "UndoMergeableCommand::mergeWith", __LINE__) << "merged(2)";
        return true;
    }
    Log::debug(kFolder, "UndoMergeableCommand::mergeWith", __LINE__) << "append newCommand to list";
    mMergedList.push_back(change->clone());
    mMergedByKey.insert(key, mMergedList.back().get());
    return true;
}
