#include "quick/TreeDropRules.h"

#include <algorithm>
#include <cmath>

namespace
{
constexpr int kIndentBase = 41;
constexpr int kIndent = 20;

TreeDrop before(const TreeDropRow &low)
{
    return { TreeDrop::Before, low.id(), low.parentId(), low.depth() };
}

TreeDrop into(int folderId, int depth)
{
    return { TreeDrop::Into, folderId, folderId, depth };
}

bool staysInPlace(const TreeDropRow &dragged, const TreeDropRow &up, const TreeDropRow &low)
{
    if (up.id() == dragged.id())
        return low.depth() == dragged.depth();
    return low.id() == dragged.id() && up.depth() == dragged.depth() && !up.folder;
}

// Below a leaf, on its level or on that of one of its folders.
TreeDrop belowLeaf(const TreeDropRow &dragged, const TreeDropRow &up, const TreeDropRow &low, int depth)
{
    if (dragged.id() == up.id() && depth >= up.depth())
        return {};
    if (low.isBelow(dragged) || up.isBelow(dragged))
        return {};
    if (depth > low.depth() || !low.exists())
        return into(up.path.value(up.depth() - depth + 1, -1), depth);
    // It may stand there already.
    return dragged.id() == low.id() ? TreeDrop() : before(low);
}

// Below a folder that shows no rows of its own, in it or on the level of one of its folders.
TreeDrop belowFolder(const TreeDropRow &dragged, const TreeDropRow &up, const TreeDropRow &low, int depth)
{
    if (dragged.id() == up.id() && depth > 0)
        return {};
    if (depth == 0 && dragged.ancestorId() == low.ancestorId())
        return {};
    const int folderId = up.path.value(up.depth() - depth + 1, -1);
    // At the end of the list a folder may leave its own for the root, with what it shows.
    if (!low.exists() && depth == 0 && dragged.depth() > 0)
        return into(folderId, depth);
    if (low.isBelow(dragged) || up.isBelow(dragged))
        return {};
    if (depth > low.depth() || !low.exists())
        return into(folderId, depth);
    return dragged.id() == low.id() ? TreeDrop() : before(low);
}
} // namespace

TreeDrop decideTreeDrop(const TreeDropRow &dragged, const TreeDropRow &up, const TreeDropRow &low, int mouseDepth)
{
    if (staysInPlace(dragged, up, low))
        return {};
    if (!up.folder && up.depth() == low.depth()) {
        if (!low.exists())
            return into(-1, low.depth());
        return low.isBelow(dragged) ? TreeDrop() : before(low);
    }
    if (low.exists() && up.ancestorId() == low.ancestorId() && up.depth() < low.depth()) {
        const bool firstInFolder = low.id() == dragged.id() && up.id() == dragged.parentId();
        return firstInFolder || low.isBelow(dragged) ? TreeDrop() : before(low);
    }
    const int topDepth = up.folder ? up.depth() + 1 : up.depth();
    const int depth = std::max(low.depth(), std::min(topDepth, mouseDepth));
    return up.folder ? belowFolder(dragged, up, low, depth) : belowLeaf(dragged, up, low, depth);
}

int treeDropDepthAt(double x)
{
    return static_cast<int>(std::floor((x - kIndentBase) / kIndent));
}

int treeDropX(int depth)
{
    return kIndentBase + depth * kIndent;
}
