#pragma once

#include "model/TreeHints.h"
#include "tool/DataSupport.h"
#include "tool/JsonWrapper.h"
#include "tool/JsonWrapperException.h"
#include "tool/Log.h"

#include <QHash>
#include <QList>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <functional>
#include <memory>

/// A node of a document's tree: the id of a record and the shape below it. The record knows all
/// else.
///
/// Children are held by value in an implicitly shared list. A pointer to a node is therefore valid
/// only until the list that holds the node changes; look the node up again by its id after that.
template <typename T>
class TreeItem
{
public:
    TreeItem() = default;
    TreeItem(int id, bool folder) : mId(id), mFolder(folder) { }
    TreeItem(const TreeItem &other) = default;
    TreeItem &operator=(const TreeItem &other) = default;
    virtual ~TreeItem() = default;

    /// A subtree from JSON, owned by the caller, with its records appended to dataList, parents
    /// before children. Null with a warning in the log when the JSON is no object; the records that
    /// were read until then stay in dataList. Kept becomes false where a record lacks what a key of one of its
    /// fields says, and where a node that is no folder has children.
    static TreeItem<T> *createFromJson(const JsonWrapper &json, QList<T *> *dataList, bool *kept = nullptr);

    /// Calls visit for this node and then for all below it, parents before children.
    void visitAll(const std::function<void(const TreeItem<T> &)> &visit) const;

    /// Appends the id of this node after the ids of all below it.
    void collectIds(QList<int> &idList) const;

    int mId = -1;
    bool mFolder = false;
    QList<TreeItem<T>> mChildren;

private:
    static bool read(const JsonWrapper &json, TreeItem<T> &item, QList<T *> &dataList, bool *kept);
};

/// The tree of nodes and the flat list of records, which together are a document.
///
/// Each node below the root has a record of its id. Records live on the heap; who holds this object
/// owns those in mDataList, this class frees none.
template <typename T>
class TreeDataTemplate
{
public:
    /// Ids from this one on never count as used.
    static constexpr int kIdLimit = 99999999;

    /// The first record with that id, or null.
    T *getData(int id) const;
    /// The position of that record, or -1.
    int getDataIndex(int id) const;
    /// The ids below kIdLimit of all records, in list order.
    QList<int> getIdList() const;
    /// The names of all records, in list order.
    QStringList getNameList() const;
    /// The lowest free id from 1 up.
    int getNewId() const;
    QString getNewName(const QString &base, int digits) const;
    /// The name itself if it is free, else the next free name in the numbering style that it shows.
    QString getValidName(const QString &candidate) const;
    /// The node of that id, the root included; null if there is none.
    TreeItem<T> *findItem(int id);
    /// The node that has a direct child of that id, with its position in index; null and -1 if
    /// there is none.
    TreeItem<T> *getParentItem(int id, int &index);
    /// The ids from the root's child down to the node of that id; empty for the root and for an
    /// unknown id.
    QList<int> getPathIds(int id);

    /// Puts a node among the children of one of this tree's nodes.
    void insertItem(TreeItem<T> &parent, int index, const TreeItem<T> &item);
    /// Takes the node of that id, with all below it, out of the tree.
    bool removeItem(int id);
    /// Empties the tree for another document.
    void clearTree();
    /// Takes the record of that id out of the list; null if there is none. The caller owns it.
    std::unique_ptr<T> takeData(int id);

    QList<T *> mDataList;
    TreeItem<T> mRoot;

private:
    void indexNewRecords() const;
    void forgetIndex() const;
    TreeItem<T> *follow(const QList<int> &path, int steps);

    // Position by id of the first mIndexedCount records. A hint that every use checks against the
    // list, since others write to the list directly. An id that stands several times has no hint:
    // which of its records comes first can change without any hint being wrong.
    static constexpr int kNoHint = -1;
    static constexpr int kSeveral = -2;
    mutable QHash<int, int> mIndexById;
    mutable int mIndexedCount = 0;
    TreeHints mPlaces;
};

template <typename T>
TreeItem<T> *TreeItem<T>::createFromJson(const JsonWrapper &json, QList<T *> *dataList, bool *kept)
{
    try {
        auto item = std::make_unique<TreeItem<T>>();
        return read(json, *item, *dataList, kept) ? item.release() : nullptr;
    } catch (const JsonWrapperException &exception) {
        Log::warning("cpp/model", "TreeItem<class TutorialItemData>::createFromJson", __LINE__) << exception.message();
        return nullptr;
    }
}

template <typename T>
bool TreeItem<T>::read(const JsonWrapper &json, TreeItem<T> &item, QList<T *> &dataList, bool *kept)
{
    T *record = T::fromJson(json, kept);
    if (!record)
        return false;
    dataList.append(record);
    item.mId = record->mId;
    const QJsonObject object = json.toObject();
    item.mFolder = object.value(QLatin1String("folder")).toBool();
    const auto children = object.constFind(QLatin1String("children"));
    if (children == object.constEnd())
        return true;
    const JsonWrapper list(*children);
    item.mChildren.reserve(list.length());
    if (kept && !item.mFolder && list.length() > 0)
        *kept = false;
    const QJsonArray elements = list.toArray();
    for (const QJsonValue &element : elements) {
        item.mChildren.append(TreeItem<T>());
        if (!read(JsonWrapper(element), item.mChildren.last(), dataList, kept))
            return false;
    }
    return true;
}

template <typename T>
void TreeItem<T>::visitAll(const std::function<void(const TreeItem<T> &)> &visit) const
{
    visit(*this);
    for (const TreeItem<T> &child : mChildren)
        child.visitAll(visit);
}

template <typename T>
void TreeItem<T>::collectIds(QList<int> &idList) const
{
    if (mFolder) {
        for (const TreeItem<T> &child : mChildren)
            child.collectIds(idList);
    }
    idList.append(mId);
}

template <typename T>
void TreeDataTemplate<T>::forgetIndex() const
{
    mIndexById.clear();
    mIndexedCount = 0;
}

template <typename T>
void TreeDataTemplate<T>::indexNewRecords() const
{
    mIndexedCount = std::min(mIndexedCount, mDataList.size());
    while (mIndexedCount < mDataList.size()) {
        const int id = mDataList.at(mIndexedCount)->mId;
        const auto known = mIndexById.find(id);
        if (known == mIndexById.end() || *known >= mIndexedCount) {
            mIndexById.insert(id, mIndexedCount);
        } else if (*known == kSeveral || mDataList.at(*known)->mId == id) {
            *known = kSeveral;
        } else {
            // A record was put before this one, so that all hints may be wrong.
            forgetIndex();
            continue;
        }
        ++mIndexedCount;
    }
}

template <typename T>
int TreeDataTemplate<T>::getDataIndex(int id) const
{
    indexNewRecords();
    const int hint = mIndexById.value(id, kNoHint);
    if (hint >= 0 && hint < mDataList.size() && mDataList.at(hint)->mId == id)
        return hint;
    // There is no such record, or several, or the list was changed in its middle.
    for (int i = 0; i < mDataList.size(); ++i) {
        if (mDataList.at(i)->mId == id) {
            if (hint != kSeveral)
                forgetIndex();
            return i;
        }
    }
    return -1;
}

template <typename T>
T *TreeDataTemplate<T>::getData(int id) const
{
    const int index = getDataIndex(id);
    return index < 0 ? nullptr : mDataList.at(index);
}

template <typename T>
QList<int> TreeDataTemplate<T>::getIdList() const
{
    QList<int> idList;
    for (const T *record : mDataList) {
        if (record->mId < kIdLimit)
            idList.append(record->mId);
    }
    return idList;
}

template <typename T>
QStringList TreeDataTemplate<T>::getNameList() const
{
    QStringList nameList;
    for (const T *record : mDataList)
        nameList.append(record->mName);
    return nameList;
}

template <typename T>
int TreeDataTemplate<T>::getNewId() const
{
    return DataSupport::getUniqueId(getIdList(), 1);
}

template <typename T>
QString TreeDataTemplate<T>::getNewName(const QString &base, int digits) const
{
    return DataSupport::getUniqueName(getNameList(), base, digits);
}

template <typename T>
QString TreeDataTemplate<T>::getValidName(const QString &candidate) const
{
    const QStringList names = getNameList();
    if (!names.contains(candidate))
        return candidate;

    QString base = candidate;
    int digits = 0;
    const QRegularExpressionMatch bracket = QRegularExpression(QStringLiteral("\\(\\d+\\)$")).match(candidate);
    const QRegularExpressionMatch number = QRegularExpression(QStringLiteral("\\d+$")).match(candidate);
    if (bracket.hasMatch()) {
        base = candidate.left(bracket.capturedStart());
        digits = -2;
    } else if (number.hasMatch()) {
        base = candidate.left(number.capturedStart());
        digits = number.capturedLength();
    }
    Log::debug("cpp/model", "TreeDataTemplate<class TutorialItemData>::getValidName", __LINE__) << base << digits;
    return DataSupport::getUniqueName(names, base, digits);
}

template <typename T>
TreeItem<T> *TreeDataTemplate<T>::follow(const QList<int> &path, int steps)
{
    // The search reads only; the lists on the way to the hit are the only ones that may detach.
    TreeItem<T> *item = &mRoot;
    for (int i = 0; i < steps; ++i)
        item = &item->mChildren[path.at(i)];
    return item;
}

template <typename T>
TreeItem<T> *TreeDataTemplate<T>::findItem(int id)
{
    QList<int> path;
    return mPlaces.findPath(mRoot, id, path) ? follow(path, path.size()) : nullptr;
}

template <typename T>
TreeItem<T> *TreeDataTemplate<T>::getParentItem(int id, int &index)
{
    index = -1;
    QList<int> path;
    if (!mPlaces.findPath(mRoot, id, path) || path.isEmpty())
        return nullptr;
    index = path.last();
    return follow(path, path.size() - 1);
}

template <typename T>
QList<int> TreeDataTemplate<T>::getPathIds(int id)
{
    QList<int> path;
    QList<int> ids;
    if (!mPlaces.findPath(mRoot, id, path))
        return ids;
    const TreeItem<T> *item = &mRoot;
    for (const int position : path) {
        item = &item->mChildren.at(position);
        ids.append(item->mId);
    }
    return ids;
}

template <typename T>
void TreeDataTemplate<T>::insertItem(TreeItem<T> &parent, int index, const TreeItem<T> &item)
{
    parent.mChildren.insert(index, item);
    mPlaces.note(item.mId, parent.mId, index);
}

template <typename T>
bool TreeDataTemplate<T>::removeItem(int id)
{
    int index = -1;
    TreeItem<T> *parent = getParentItem(id, index);
    if (!parent)
        return false;
    parent->mChildren.removeAt(index);
    return true;
}

template <typename T>
void TreeDataTemplate<T>::clearTree()
{
    mRoot.mChildren.clear();
    mPlaces = TreeHints();
}

template <typename T>
std::unique_ptr<T> TreeDataTemplate<T>::takeData(int id)
{
    const int index = getDataIndex(id);
    return std::unique_ptr<T>(index < 0 ? nullptr : mDataList.takeAt(index));
}
