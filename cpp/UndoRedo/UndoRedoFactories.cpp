// The factories of the tree commands.

#include "tool/IdSet.h"
#include "TutorialEditor/Manager.h"
#include "UndoRedo/AddFolderCommand.h"
#include "UndoRedo/CreateItemCommand.h"
#include "UndoRedo/DeleteTreeItemCommand.h"
#include "UndoRedo/InsertTreeItemCommand.h"
#include "UndoRedo/MoveTreeItemCommand.h"
#include "UndoRedo/RenameTreeItemNameCommand.h"
#include "UndoRedo/UndoRedo.h"

#include <utility>

namespace
{
/// The ids with all their contents, each folder after what it holds, and none twice.
QList<int> withContents(const QList<int> &idList)
{
    TreeDataTemplate<TutorialItemData> &document = TutorialEditor::Manager::instance()->mData;
    QList<int> collected;
    for (const int id : idList) {
        const TreeItem<TutorialItemData> *item = document.findItem(id);
        if (item && item != &document.mRoot)
            item->collectIds(collected);
    }
    QList<int> all;
    QSet<int> seen;
    for (const int id : qAsConst(collected)) {
        if (!seen.contains(id))
            all.append(id);
        seen.insert(id);
    }
    return all;
}

void takeBackJumpsTo(const QList<int> &idList)
{
    const QSet<int> targets = idSet(idList);
    for (TutorialItemData *record : qAsConst(TutorialEditor::Manager::instance()->mData.mDataList)) {
        if (record->mJump >= 0 && targets.contains(record->mJump))
            record->setJump(-1);
        if (record->mJumpNo >= 0 && targets.contains(record->mJumpNo))
            record->setJumpNo(-1);
    }
}
} // namespace

template <typename Command, typename... Arguments>
Command *UndoRedo::add(Arguments &&...arguments)
{
    auto *command = new Command(std::forward<Arguments>(arguments)...);
    instance()->addCommand(command);
    return command;
}

AddFolderCommand *UndoRedo::addFolderCommand(int targetId, int position, const QString &linkInfo,
                                             const QVariantMap &option)
{
    return add<AddFolderCommand>(targetId, position, linkInfo, option);
}

CreateItemCommand *UndoRedo::createItemCommand(int targetId, int position, const QString &name, const QString &linkInfo,
                                               const QVariantMap &option)
{
    return add<CreateItemCommand>(targetId, position, name, linkInfo, option);
}

bool UndoRedo::insertItemCommand(int targetId, int position, int newId, bool folder, TutorialItemData *data,
                                 const QString &linkInfo, const QVariantMap &option)
{
    add<InsertTreeItemCommand>(targetId, position, newId, folder, data, linkInfo, option);
    return true;
}

void UndoRedo::moveItemsCommand(const QList<int> &idList, bool before, int targetId, const QString &linkInfo,
                                const QVariantMap &option)
{
    add<MoveTreeItemCommand>(idList, before, targetId, linkInfo, option);
}

void UndoRedo::renameItemCommand(int id, const QString &name, const QString &linkInfo, const QVariantMap &option)
{
    add<RenameTreeItemNameCommand>(id, name, linkInfo, option);
}

QVariant UndoRedo::deleteItemsCommand(const QList<int> &idList, const QString &linkInfo, const QVariantMap &option)
{
    const QList<int> all = withContents(idList);
    // Before the delete, so that an undo sets the jumps again once the items are back.
    takeBackJumpsTo(all);
    add<DeleteTreeItemCommand>(idList, all, linkInfo, option);
    return true;
}
