#pragma once

#include <QVector>

/// A row of the tree as the rules of dropping see it. Without a path it is no row: the end of the
/// list, which counts as a row of depth 0 in the root.
struct TreeDropRow
{
    /// The ids of the row and of its folders, the row first and the root (-1) last.
    QVector<int> path;
    bool folder = false;

    bool exists() const { return !path.isEmpty(); }
    int id() const { return path.value(0, -1); }
    /// 0 for a child of the root, -1 for the root.
    int depth() const { return exists() ? path.size() - 2 : 0; }
    int parentId() const { return path.value(1, -1); }
    /// The id of the child of the root that the row is or stands in; -1 if there is none.
    int ancestorId() const { return path.value(path.size() - 2, -1); }
    bool isBelow(const TreeDropRow &other) const { return path.indexOf(other.id()) > 0; }
};

/// Where a dragged row would go.
struct TreeDrop
{
    enum Kind { Refused, Before, Into };

    Kind kind = Refused;
    /// The row to stand before, or the folder to be the last in.
    int targetId = -1;
    /// The folder that the row would then stand in.
    int folderId = -1;
    /// The depth that the row would then have.
    int depth = 0;
};

/// Whether a dragged row may go into the gap between two neighbours of the visible list, and where
/// that is in the tree. Where the list steps back to a shallower level, or where a folder begins,
/// the gap belongs to several levels; mouseDepth picks one. The row above the gap must exist.
TreeDrop decideTreeDrop(const TreeDropRow &dragged, const TreeDropRow &up, const TreeDropRow &low, int mouseDepth);

/// The depth that an x position in the list stands for, and the x position of a depth.
int treeDropDepthAt(double x);
int treeDropX(int depth);
