// How the rows of TutorialItemListModel follow the document.

#include "quick/TutorialItemListModel.h"
#include "TutorialEditor/Manager.h"

#include <QSignalBlocker>

namespace
{
const TutorialItemData *recordOf(int id)
{
    // The root has no record; looking for one would read the whole list.
    return id < 0 ? nullptr : TutorialEditor::Manager::instance()->mData.getData(id);
}

/// The positions of a node's children by id. The hash is built when a row is not where it is
/// expected.
class Positions
{
public:
    explicit Positions(const QList<TreeItem<TutorialItemData>> &children) : mChildren(children) { }

    /// The position of that child, which is expected at the one given; -1 if there is none.
    int find(int id, int expected)
    {
        if (expected >= 0 && mChildren.at(expected).mId == id)
            return expected;
        if (mPositions.isEmpty()) {
            mPositions.reserve(mChildren.size());
            for (int i = mChildren.size() - 1; i >= 0; --i)
                mPositions.insert(mChildren.at(i).mId, i);
        }
        return mPositions.value(id, -1);
    }

private:
    const QList<TreeItem<TutorialItemData>> &mChildren;
    QHash<int, int> mPositions;
};

/// The rows of a folder whose roles have changed. They are told of together: a view of the tree walks
/// all that is open for each time that it is told.
class ChangedRows
{
public:
    explicit ChangedRows(const QStandardItem &folder) : mFolder(folder) { }

    void add(int row)
    {
        if (mFirst < 0)
            mFirst = row;
        mLast = row;
    }

    void tell(const QVector<int> &roles) const
    {
        if (mFirst >= 0)
            Q_EMIT mFolder.model()->dataChanged(mFolder.child(mFirst)->index(), mFolder.child(mLast)->index(), roles);
    }

private:
    const QStandardItem &mFolder;
    int mFirst = -1;
    int mLast = -1;
};

/// Sets the role and says whether it was another; who sets it tells of it.
bool setRole(QStandardItem &row, const QVariant &value, int role)
{
    if (row.data(role) == value)
        return false;
    const QSignalBlocker blocker(row.model());
    row.setData(value, role);
    return true;
}
} // namespace

QStandardItem *TutorialItemListModel::makeRow(const Item &item)
{
    const TutorialItemData *record = recordOf(item.mId);
    const QString name = record ? record->mName : QString();
    auto *row = new QStandardItem(item.mId < 0 ? tr("/") : name);
    row->setData(item.mId, RoleId);
    row->setData(item.mFolder, RoleFolder);
    return row;
}

bool TutorialItemListModel::copyRoles(QStandardItem &row)
{
    const TutorialItemData *record = recordOf(row.data(RoleId).toInt());
    if (!record)
        return false;
    bool changed = setRole(row, record->mIcon, RoleIcon);
    changed |= setRole(row, record->mJump, RoleJump);
    // A folder shows what it holds, not what its record says.
    if (!row.data(RoleFolder).toBool())
        changed |= setRole(row, record->mProhibited, RoleProhibited);
    return changed;
}

void TutorialItemListModel::appendRows(QStandardItem &parentRow, const QList<Item> &items)
{
    if (items.isEmpty())
        return;
    QList<QStandardItem *> rows;
    rows.reserve(items.size());
    for (const Item &item : items) {
        rows.append(makeRow(item));
        copyRoles(*rows.last());
    }
    parentRow.appendRows(rows);
    for (int i = 0; i < items.size(); ++i)
        appendRows(*rows.at(i), items.at(i).mChildren);
}

void TutorialItemListModel::refresh()
{
    clear();
    appendRows(*invisibleRootItem(), { TutorialEditor::Manager::instance()->mData.mRoot });
    updateProhibitedStates();
}

void TutorialItemListModel::refreshPartial()
{
    Item wrapper(-1, true);
    wrapper.mChildren.append(TutorialEditor::Manager::instance()->mData.mRoot);
    reconcileRows(*invisibleRootItem(), wrapper);
}

void TutorialItemListModel::insertNewRows(QStandardItem &parentRow, int row, const QList<Item> &items, int first,
                                          int last)
{
    if (first > last)
        return;
    QList<QStandardItem *> rows;
    rows.reserve(last - first + 1);
    for (int i = first; i <= last; ++i)
        rows.append(makeRow(items.at(i)));
    parentRow.insertRows(row, rows);
    for (int i = first; i <= last; ++i) {
        const QList<Item> &children = items.at(i).mChildren;
        insertNewRows(*rows.at(i - first), 0, children, 0, children.size() - 1);
    }
}

void TutorialItemListModel::reconcileRows(QStandardItem &parentRow, const Item &node)
{
    const QList<Item> &children = node.mChildren;
    removeGoneRows(parentRow, children);
    // The rows that are left are in order, so that each row gets its final place at once.
    for (int i = 0; i < children.size(); ++i) {
        const QStandardItem *row = parentRow.child(i);
        const int standing = row ? row->data(RoleId).toInt() : -1;
        int next = i;
        while (next < children.size() && (!row || children.at(next).mId != standing))
            ++next;
        if (next > i)
            Q_EMIT rowsAboutToCome();
        insertNewRows(parentRow, i, children, i, next - 1);
        i = next;
        if (row)
            reconcileStandingRow(*parentRow.child(i), children.at(i));
    }
}

void TutorialItemListModel::reconcileStandingRow(QStandardItem &row, const Item &item)
{
    const TutorialItemData *record = recordOf(item.mId);
    if (record && row.text() != record->mName)
        row.setText(record->mName);
    reconcileRows(row, item);
}

void TutorialItemListModel::removeGoneRows(QStandardItem &parentRow, const QList<Item> &children)
{
    Positions positions(children);
    // From the end to the start. The children from unmatched on have their rows or get new ones; the
    // rows from the present one up to goneEnd have no child that fits the order, and go together.
    int unmatched = children.size();
    int goneEnd = parentRow.rowCount();
    const auto removeGone = [this, &parentRow, &goneEnd](int first) {
        if (goneEnd <= first)
            return;
        Q_EMIT rowsAboutToGo(parentRow.index(), first, goneEnd - 1);
        parentRow.removeRows(first, goneEnd - first);
    };
    for (int r = parentRow.rowCount() - 1; r >= 0; --r) {
        const QStandardItem *row = parentRow.child(r);
        const QVariant id = row->data(RoleId);
        if (static_cast<QMetaType::Type>(id.type()) != QMetaType::Int)
            continue;
        const int position = positions.find(id.toInt(), unmatched - 1);
        if (position < 0 || position >= unmatched)
            continue;
        // An id that was set free can come back for something else between two refreshes.
        if (row->data(RoleFolder).toBool() != children.at(position).mFolder)
            continue;
        removeGone(r + 1);
        unmatched = position;
        goneEnd = r;
    }
    removeGone(0);
}

void TutorialItemListModel::refreshRoles()
{
    refreshRoles(*getRootItem(), TutorialEditor::Manager::instance()->mData.mRoot);
    updateProhibitedStates();
}

bool TutorialItemListModel::refreshRoles(QStandardItem &row, const Item &item)
{
    if (row.data(RoleId) != item.mId)
        return false;
    ChangedRows changedRows(row);
    const int count = qMin(row.rowCount(), item.mChildren.size());
    for (int i = 0; i < count; ++i) {
        if (refreshRoles(*row.child(i), item.mChildren.at(i)))
            changedRows.add(i);
    }
    changedRows.tell({ RoleIcon, RoleJump, RoleProhibited });
    return copyRoles(row);
}

void TutorialItemListModel::updateProhibitedStates()
{
    QStandardItem &rootRow = *getRootItem();
    if (updateFolderProhibitedState(rootRow).folderChanged)
        Q_EMIT dataChanged(rootRow.index(), rootRow.index(), { RoleProhibited });
}

TutorialItemListModel::ProhibitedCounts TutorialItemListModel::updateFolderProhibitedState(QStandardItem &row)
{
    ProhibitedCounts counts;
    if (!row.data(RoleFolder).toBool()) {
        ++(row.data(RoleProhibited).toBool() ? counts.prohibited : counts.permitted);
        return counts;
    }
    ChangedRows changedRows(row);
    for (int i = 0; i < row.rowCount(); ++i) {
        const ProhibitedCounts below = updateFolderProhibitedState(*row.child(i));
        counts.prohibited += below.prohibited;
        counts.permitted += below.permitted;
        if (below.folderChanged)
            changedRows.add(i);
    }
    changedRows.tell({ RoleProhibited });
    counts.folderChanged = setRole(row, counts.prohibited > 0 && counts.permitted == 0, RoleProhibited);
    return counts;
}
