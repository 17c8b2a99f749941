// What the screens ask of the rows of TutorialItemListModel, and the tree's text for the jump menus.

#include "quick/TutorialItemListModel.h"
#include "tool/IdSet.h"
#include "TutorialEditor/Manager.h"

#include <QStringList>

namespace
{
using Model = TutorialItemListModel;

QStandardItem *findBelow(QStandardItem *row, int id)
{
    if (row->data(Model::RoleId) == id)
        return row;
    for (int i = 0; i < row->rowCount(); ++i) {
        if (QStandardItem *hit = findBelow(row->child(i), id))
            return hit;
    }
    return nullptr;
}

/// The one of the two ids whose row comes first; -1 if there is neither.
int firstOf(const QStandardItem *row, int id1, int id2)
{
    const int id = row->data(Model::RoleId).toInt();
    if (id == id1 || id == id2)
        return id;
    for (int i = 0; i < row->rowCount(); ++i) {
        const int hit = firstOf(row->child(i), id1, id2);
        if (hit >= 0)
            return hit;
    }
    return -1;
}

/// Appends the folders that hold something, among those rows and below them.
void appendFolders(const QStandardItem &folder, int first, int last, QVariantList &indexes)
{
    for (int i = first; i <= last; ++i) {
        const QStandardItem *row = folder.child(i);
        if (!row->hasChildren())
            continue;
        indexes.append(row->index());
        appendFolders(*row, 0, row->rowCount() - 1, indexes);
    }
}

/// The rows that are shown of those rows of a folder, each with what is open in it.
int shownRows(const QStandardItem &folder, int first, int last, const QSet<int> &open)
{
    int count = last - first + 1;
    for (int i = first; i <= last; ++i) {
        const QStandardItem *row = folder.child(i);
        if (row->hasChildren() && open.contains(row->data(Model::RoleId).toInt()))
            count += shownRows(*row, 0, row->rowCount() - 1, open);
    }
    return count;
}

QString nodeText(const TreeItem<TutorialItemData> &item, const TreeDataTemplate<TutorialItemData> &data)
{
    const TutorialItemData *record = data.getData(item.mId);
    const QString name = JsonWrapper::getJsonString(record ? record->mName : QString());
    QString text = QStringLiteral("{\"id\":") + QString::number(item.mId) + QStringLiteral(",\"name\":") + name;
    if (!item.mFolder)
        return text + QStringLiteral(",\"folder\":false}");
    QStringList children;
    for (const TreeItem<TutorialItemData> &child : item.mChildren)
        children.append(nodeText(child, data));
    return text + QStringLiteral(",\"folder\":true,\"children\":[") + children.join(QLatin1Char(','))
        + QStringLiteral("]}");
}
} // namespace

QStandardItem *TutorialItemListModel::getRootItem() const
{
    QStandardItem *invisibleRoot = invisibleRootItem();
    return invisibleRoot->rowCount() > 0 ? invisibleRoot->child(0) : invisibleRoot;
}

QStandardItem *TutorialItemListModel::findItemById(int id) const
{
    return findBelow(getRootItem(), id);
}

QModelIndex TutorialItemListModel::getRootIndex() const
{
    return index(0, 0);
}

QModelIndex TutorialItemListModel::getModelIndexById(int id) const
{
    const QStandardItem *row = findItemById(id);
    return row ? row->index() : QModelIndex();
}

bool TutorialItemListModel::exists(int id) const
{
    return findItemById(id) != nullptr;
}

int TutorialItemListModel::getDepth(const QModelIndex &index) const
{
    int depth = -1;
    for (QModelIndex above = index.parent(); above.isValid(); above = above.parent())
        ++depth;
    return depth;
}

int TutorialItemListModel::getParentId(const QModelIndex &index) const
{
    const QModelIndex above = index.parent();
    return above.isValid() ? above.data(RoleId).toInt() : -1;
}

int TutorialItemListModel::getAncestorId(const QModelIndex &index) const
{
    const QModelIndex ancestor = getAncestor(index, getDepth(index));
    return getDepth(ancestor) == 0 ? ancestor.data(RoleId).toInt() : -1;
}

QModelIndex TutorialItemListModel::getAncestor(const QModelIndex &index, int upCount) const
{
    QModelIndex ancestor = index;
    for (int i = 0; i < upCount && ancestor.isValid(); ++i)
        ancestor = ancestor.parent();
    return ancestor;
}

bool TutorialItemListModel::isAncestor(const QModelIndex &ancestor, const QModelIndex &index) const
{
    for (QModelIndex above = index.parent(); above.parent().isValid(); above = above.parent()) {
        if (above == ancestor)
            return true;
    }
    return false;
}

bool TutorialItemListModel::isLower(int id1, int id2) const
{
    return id1 != id2 && firstOf(getRootItem(), id1, id2) == id2;
}

QVariantList TutorialItemListModel::getFolders(const QModelIndex &folder, int first, int last) const
{
    QVariantList indexes;
    const QStandardItem *row = folder.isValid() ? itemFromIndex(folder) : invisibleRootItem();
    appendFolders(*row, qMax(0, first), qMin(last, row->rowCount() - 1), indexes);
    return indexes;
}

int TutorialItemListModel::getRowsAbove(const QModelIndex &index, const QList<int> &openFolderIds) const
{
    const QSet<int> open = idSet(openFolderIds);
    int count = 0;
    for (QModelIndex step = index; step.parent().isValid(); step = step.parent())
        count += 1 + shownRows(*itemFromIndex(step.parent()), 0, step.row() - 1, open);
    return count;
}

QVariant TutorialItemListModel::getFocusIdList(int id) const
{
    QList<int> idList;
    if (id < 0) {
        for (const QStandardItem *row = getRootItem(); row; row = row->child(0))
            idList.append(row->data(RoleId).toInt());
    } else if (const QStandardItem *hit = findItemById(id)) {
        for (const QStandardItem *row = hit; row && row != invisibleRootItem(); row = row->parent()) {
            if (row->data(RoleId).type() == QVariant::Int)
                idList.prepend(row->data(RoleId).toInt());
        }
    }
    return QVariant::fromValue(idList);
}

int TutorialItemListModel::getNextId(const QList<int> &idList, bool fromAbove) const
{
    const QSet<int> gone = idSet(idList);
    const auto goes = [&gone](const QStandardItem *row) { return gone.contains(row->data(RoleId).toInt()); };
    const QStandardItem *row = idList.isEmpty() ? nullptr : findItemById(idList.first());
    for (const QStandardItem *above = row; above; above = above->parent()) {
        if (goes(above))
            row = above;
    }
    const QStandardItem *folder = row ? row->parent() : nullptr;
    if (!folder)
        return -1;
    const auto staying = [&](int step) {
        const QStandardItem *sibling = folder->child(row->row() + step);
        while (sibling && goes(sibling))
            sibling = folder->child(sibling->row() + step);
        return sibling;
    };
    const QStandardItem *next = staying(fromAbove ? -1 : 1);
    if (!next)
        next = staying(fromAbove ? 1 : -1);
    return (next ? next : folder)->data(RoleId).toInt();
}

QString TutorialItemListModel::getTreeJson() const
{
    const TreeDataTemplate<TutorialItemData> &data = TutorialEditor::Manager::instance()->mData;
    QStringList nodes;
    for (const TreeItem<TutorialItemData> &child : data.mRoot.mChildren)
        nodes.append(nodeText(child, data));
    return QStringLiteral("{ \"id\": -1, \"name\": \"root\", \"folder\": true, \"children\": [\n\t")
        + nodes.join(QStringLiteral(",\n\t\t")) + QStringLiteral("\n] }");
}
