#include "UndoRedo/StepItems.h"

#include "UndoRedo/TreeCommand.h"
#include "UndoRedo/UndoMergeableCommand.h"

namespace
{
void collect(const QUndoCommand &command, QList<int> &inTree, QSet<int> &changed)
{
    if (const auto *treeCommand = dynamic_cast<const TreeCommand *>(&command))
        inTree += treeCommand->itemIds();
    else if (const auto *change = dynamic_cast<const UndoMergeableCommand *>(&command))
        changed += change->itemIds();
    for (int i = 0; i < command.childCount(); ++i)
        collect(*command.child(i), inTree, changed);
}
} // namespace

QList<int> stepItems(const QUndoCommand &step)
{
    QList<int> inTree;
    QSet<int> changed;
    collect(step, inTree, changed);
    if (!inTree.isEmpty() || changed.size() > 1)
        return inTree;
    return changed.values();
}
