#pragma once

#include <QHash>
#include <QList>
#include <QSet>

/// Where the nodes of a tree were last seen, by id, so that a lookup need not walk the whole tree.
///
/// Others write to the tree directly, so each entry is only a hint, checked against the tree
/// whenever it is used.
class TreeHints
{
public:
    /// The positions that lead from root to the first node of that id; false if there is none.
    template <typename Item>
    bool findPath(const Item &root, int id, QList<int> &path);

    /// A node has been put there.
    void note(int id, int parentId, int index) { mPlaces.insert(id, { parentId, index }); }

private:
    struct Place
    {
        int parentId;
        int index;
    };

    template <typename Item>
    bool follow(const Item &root, int id, QList<int> &path) const;
    template <typename Item>
    bool walk(const Item &item, int id, QList<int> &path) const;
    template <typename Item>
    void noteAll(const Item &item);

    QHash<int, Place> mPlaces;
    // Ids that were seen twice. Which of the two nodes comes first can change without any hint being
    // wrong.
    QSet<int> mSeveral;
};

template <typename Item>
bool TreeHints::findPath(const Item &root, int id, QList<int> &path)
{
    if (!mSeveral.contains(id) && follow(root, id, path))
        return true;
    path.clear();
    if (!walk(root, id, path))
        return false;
    if (mSeveral.contains(id))
        return true;
    // The tree has changed since the hints were taken.
    mPlaces.clear();
    noteAll(root);
    return true;
}

template <typename Item>
bool TreeHints::follow(const Item &root, int id, QList<int> &path) const
{
    QList<int> ids;
    for (int current = id; current != root.mId;) {
        const auto place = mPlaces.constFind(current);
        // Hints of different times may form a ring.
        if (place == mPlaces.constEnd() || ids.size() > mPlaces.size())
            return false;
        ids.prepend(current);
        path.prepend(place->index);
        current = place->parentId;
    }
    const Item *item = &root;
    for (int i = 0; i < path.size(); ++i) {
        if (path.at(i) >= item->mChildren.size())
            return false;
        item = &item->mChildren.at(path.at(i));
        if (item->mId != ids.at(i))
            return false;
    }
    return true;
}

template <typename Item>
bool TreeHints::walk(const Item &item, int id, QList<int> &path) const
{
    for (int i = 0; i < item.mChildren.size(); ++i) {
        const Item &child = item.mChildren.at(i);
        path.append(i);
        if (child.mId == id || walk(child, id, path))
            return true;
        path.removeLast();
    }
    return false;
}

template <typename Item>
void TreeHints::noteAll(const Item &item)
{
    for (int i = 0; i < item.mChildren.size(); ++i) {
        const Item &child = item.mChildren.at(i);
        if (mPlaces.contains(child.mId))
            mSeveral.insert(child.mId);
        else
            note(child.mId, item.mId, i);
        noteAll(child);
    }
}
