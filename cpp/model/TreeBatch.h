#pragma once

#include "model/TreeItem.h"
#include "tool/IdSet.h"

#include <QHash>
#include <QList>

#include <algorithm>
#include <memory>
#include <vector>

/// Many nodes or records out of a document and back in one pass each, so that the cost does not
/// grow with the number of those times the size of the document.

/// A node that is out of the tree, with the place where it stood or shall stand.
template <typename T>
struct TakenItem
{
    TreeItem<T> item;
    int parentId;
    int index;
};

/// A record that is out of the list, with its position there.
template <typename T>
struct TakenRecord
{
    std::unique_ptr<T> record;
    int index;
};

namespace TreeBatch
{
/// Takes the first node of each id out of the tree below this one. What stands below a taken node
/// stays with it, unless it is taken as well. The places are those before the first removal;
/// those in one parent come in ascending order.
template <typename T>
void takeItems(TreeItem<T> &item, QSet<int> &ids, QList<TakenItem<T>> &taken)
{
    int kept = 0;
    for (int i = 0; i < item.mChildren.size(); ++i) {
        if (ids.isEmpty() && kept == i)
            return;
        const int id = item.mChildren.at(i).mId;
        const bool hit = ids.remove(id);
        if (!ids.isEmpty() && !item.mChildren.at(i).mChildren.isEmpty())
            takeItems(item.mChildren[i], ids, taken);
        if (hit) {
            taken.append({ item.mChildren.at(i), item.mId, i });
            continue;
        }
        if (kept != i)
            item.mChildren[kept] = item.mChildren.at(i);
        ++kept;
    }
    item.mChildren.erase(item.mChildren.begin() + kept, item.mChildren.end());
}

template <typename T>
QList<TakenItem<T>> takeItems(TreeItem<T> &root, const QList<int> &idList)
{
    QSet<int> ids = idSet(idList);
    QList<TakenItem<T>> taken;
    takeItems(root, ids, taken);
    return taken;
}

/// Puts the nodes of one parent among its children. Each index counts in the finished list.
template <typename T>
void mergeItems(TreeItem<T> &parent, const QList<TakenItem<T>> &items)
{
    QList<TreeItem<T>> merged;
    merged.reserve(parent.mChildren.size() + items.size());
    auto standing = parent.mChildren.cbegin();
    for (const TakenItem<T> &taken : items) {
        while (merged.size() < taken.index && standing != parent.mChildren.cend())
            merged.append(*standing++);
        merged.append(taken.item);
    }
    std::copy(standing, parent.mChildren.cend(), std::back_inserter(merged));
    parent.mChildren = merged;
}

/// The same for all parents at or below this node; the groups that found theirs are removed. A
/// parent may be one of the nodes that come back.
template <typename T>
void putGroups(TreeItem<T> &item, QHash<int, QList<TakenItem<T>>> &groups)
{
    const auto group = groups.find(item.mId);
    if (group != groups.end()) {
        mergeItems(item, *group);
        groups.erase(group);
    }
    for (int i = 0; i < item.mChildren.size() && !groups.isEmpty(); ++i)
        putGroups(item.mChildren[i], groups);
}

/// Puts the nodes at their places, of which those in one parent come in ascending order. The result
/// is the ids of the parents that are not in the tree, whose nodes are dropped.
template <typename T>
QList<int> putItems(TreeItem<T> &root, const QList<TakenItem<T>> &items)
{
    QHash<int, QList<TakenItem<T>>> groups;
    for (const TakenItem<T> &taken : items)
        groups[taken.parentId].append(taken);
    putGroups(root, groups);
    return groups.keys();
}

/// Takes the first record of each id out of the list, in list order.
template <typename T>
std::vector<TakenRecord<T>> takeRecords(QList<T *> &list, const QList<int> &idList)
{
    QSet<int> ids = idSet(idList);
    std::vector<TakenRecord<T>> taken;
    QList<T *> kept;
    kept.reserve(list.size());
    for (int i = 0; i < list.size(); ++i) {
        T *record = list.at(i);
        if (ids.remove(record->mId))
            taken.push_back({ std::unique_ptr<T>(record), i });
        else
            kept.append(record);
    }
    list = kept;
    return taken;
}

/// Gives the records back to the list, each at its position.
template <typename T>
void putRecords(QList<T *> &list, std::vector<TakenRecord<T>> taken)
{
    QList<T *> merged;
    merged.reserve(list.size() + static_cast<int>(taken.size()));
    auto standing = list.cbegin();
    for (TakenRecord<T> &entry : taken) {
        while (merged.size() < entry.index && standing != list.cend())
            merged.append(*standing++);
        merged.append(entry.record.release());
    }
    std::copy(standing, list.cend(), std::back_inserter(merged));
    list = merged;
}
} // namespace TreeBatch
