#pragma once

#include "quick/TutorialItemListModel.h"
#include "ReferenceDocument.h"

/// The document and its rows beside the reference.
namespace Comparison
{
inline ReferenceNode nodeOf(const TreeItem<TutorialItemData> &item)
{
    ReferenceNode node;
    node.id = item.mId;
    node.folder = item.mFolder;
    for (const TreeItem<TutorialItemData> &child : item.mChildren)
        node.children.append(nodeOf(child));
    return node;
}

inline ReferenceDocument actualDocument(const TreeDataTemplate<TutorialItemData> &data)
{
    ReferenceDocument document;
    for (const TutorialItemData *record : data.mDataList) {
        ReferenceRecord copy(record->mId);
        copy.name = record->mName;
        for (const QString &property : copy.values.keys())
            copy.values.insert(property, record->getValue(property));
        document.records.append(copy);
    }
    document.root = nodeOf(data.mRoot);
    return document;
}

/// Empty, or what differs between the document and the reference.
inline QString documentDifference(TreeDataTemplate<TutorialItemData> &data, ReferenceDocument &reference)
{
    const ReferenceDocument actual = actualDocument(data);
    if (!(actual == reference))
        return QStringLiteral("document\n  is %1\n  not %2").arg(actual.text(), reference.text());
    QSet<QString> names;
    QSet<int> ids;
    for (int i = 0; i < actual.records.size(); ++i) {
        const ReferenceRecord &record = actual.records.at(i);
        names.insert(record.name);
        ids.insert(record.id);
        // What is found by the indexes beside the document.
        int expectedIndex = -1;
        int index = -1;
        const int parentId = reference.root.parentOf(record.id, expectedIndex)->id;
        const TreeItem<TutorialItemData> *parent = data.getParentItem(record.id, index);
        const TreeItem<TutorialItemData> *item = data.findItem(record.id);
        if (!parent || parent->mId != parentId || index != expectedIndex || !item || item->mId != record.id
            || data.getDataIndex(record.id) != i)
            return QStringLiteral("place of item %1").arg(record.id);
    }
    if (names.size() != actual.records.size() || ids.size() != actual.records.size())
        return QStringLiteral("a name or an id stands twice in\n  %1").arg(actual.text());
    return QString();
}

/// Empty, or which row differs from the reference.
inline QString rowDifference(const QModelIndex &index, const ReferenceNode &node, ReferenceDocument &reference)
{
    const ReferenceRecord *record = reference.record(node.id);
    const QString name = record ? record->name : QStringLiteral("/");
    const bool same = index.data(TutorialItemListModel::RoleId) == node.id
        && index.data(TutorialItemListModel::RoleName) == name && index.model()->rowCount(index) == node.children.size()
        && index.data(TutorialItemListModel::RoleFolder) == node.folder
        && index.data(TutorialItemListModel::RoleProhibited).toBool() == reference.shownProhibited(node)
        && (!record
            || (index.data(TutorialItemListModel::RoleIcon) == record->values.value(QStringLiteral("icon"))
                && index.data(TutorialItemListModel::RoleJump) == record->values.value(QStringLiteral("jump"))));
    if (!same)
        return QStringLiteral("row of item %1 in %2").arg(node.id).arg(reference.text());
    for (int i = 0; i < node.children.size(); ++i) {
        const QString different = rowDifference(index.model()->index(i, 0, index), node.children.at(i), reference);
        if (!different.isEmpty())
            return different;
    }
    return QString();
}
} // namespace Comparison
