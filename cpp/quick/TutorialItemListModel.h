#pragma once

#include "model/TreeItem.h"
#include "model/TutorialItemData.h"

#include <QHash>
#include <QModelIndex>
#include <QStandardItemModel>
#include <QVariant>
#include <QVariantMap>

/// The rows of the tree of tutorial items: a mirror of the document in one column, whose one top row
/// stands for the root.
///
/// Edits build undo commands, which change the document and not the rows; the rows catch up when
/// refreshPartial runs. Only setValue writes a row at once. The caller puts edits into a transaction.
class TutorialItemListModel : public QStandardItemModel
{
    Q_OBJECT
    Q_PROPERTY(int RoleName READ roleName CONSTANT)
    Q_PROPERTY(int RoleId READ roleId CONSTANT)
    Q_PROPERTY(int RoleIcon READ roleIcon CONSTANT)
    Q_PROPERTY(int RoleJump READ roleJump CONSTANT)
    Q_PROPERTY(int RoleJsonText READ roleJsonText CONSTANT)
    Q_PROPERTY(int RoleLocalizedHint READ roleLocalizedHint CONSTANT)
    Q_PROPERTY(int RoleProhibited READ roleProhibited CONSTANT)
    Q_PROPERTY(int RoleFolder READ roleFolder CONSTANT)

public:
    enum Role {
        RoleName = Qt::DisplayRole,
        RoleId = Qt::UserRole + 1,
        RoleIcon,
        RoleJump,
        RoleJsonText,
        RoleLocalizedHint,
        RoleProhibited,
        RoleFolder
    };

    /// A step of rows among their neighbours: past one of them, to the end or the beginning of a folder
    /// beside them, and out of their own to the place after it.
    enum Step { StepUp, StepDown, StepIn, StepOut };
    Q_ENUM(Step)

    explicit TutorialItemListModel(QObject *parent = nullptr);

    static int roleName() { return RoleName; }
    static int roleId() { return RoleId; }
    static int roleIcon() { return RoleIcon; }
    static int roleJump() { return RoleJump; }
    static int roleJsonText() { return RoleJsonText; }
    static int roleLocalizedHint() { return RoleLocalizedHint; }
    static int roleProhibited() { return RoleProhibited; }
    static int roleFolder() { return RoleFolder; }
    QHash<int, QByteArray> roleNames() const override { return mRoleNames; }

    /// Builds every row anew.
    Q_INVOKABLE void refresh();
    /// Brings the rows and their names in line with the tree, keeping the rows that still stand.
    /// Their other roles stay as they are, and those of new rows are unset.
    Q_INVOKABLE void refreshPartial();
    /// Brings the icon, the jump and the prohibition of the rows, and what folders show of their
    /// contents, in line with the records.
    Q_INVOKABLE void refreshRoles();

    /// Invalid when the model has no rows.
    Q_INVOKABLE QModelIndex getRootIndex() const;
    Q_INVOKABLE QModelIndex getModelIndexById(int id) const;
    Q_INVOKABLE bool exists(int id) const;
    /// 0 for a child of the root row; -1 for the root row and an invalid index.
    Q_INVOKABLE int getDepth(const QModelIndex &index) const;
    Q_INVOKABLE int getParentId(const QModelIndex &index) const;
    /// The id of the child of the root row that the row is or stands below; -1 if there is none.
    Q_INVOKABLE int getAncestorId(const QModelIndex &index) const;
    /// The row that many parents up; invalid past the root row.
    Q_INVOKABLE QModelIndex getAncestor(const QModelIndex &index, int upCount) const;
    /// Whether it is a proper ancestor. The root row is nobody's.
    Q_INVOKABLE bool isAncestor(const QModelIndex &ancestor, const QModelIndex &index) const;
    /// Whether the row of id1 stands below that of id2.
    Q_INVOKABLE bool isLower(int id1, int id2) const;
    /// The indexes of the folders that hold something, among those rows of a folder and below them.
    Q_INVOKABLE QVariantList getFolders(const QModelIndex &folder, int first, int last) const;
    /// How many rows a view shows above a row that it shows, with those folders open.
    Q_INVOKABLE int getRowsAbove(const QModelIndex &index, const QList<int> &openFolderIds) const;
    /// The ids from the root row to that of id, for opening folders towards it; with a negative id
    /// those of the first children.
    Q_INVOKABLE QVariant getFocusIdList(int id) const;
    /// The id of the row that takes the place of the first of these when they go: the next one of its
    /// folder, else the one above (with fromAbove the other way round), else the folder; -1 if nothing
    /// is left.
    Q_INVOKABLE int getNextId(const QList<int> &idList, bool fromAbove = false) const;
    /// Where the rows would go if they were dropped between two neighbours of the visible list, with
    /// the mouse at x; an invalid indexLow is the end of the list. Empty if one of them may not go
    /// there. Else "before" with the "targetId" to stand before, or to go into when it is false, the
    /// "folderId" that the rows would stand in, and the "x" of their new level.
    Q_INVOKABLE QVariantMap calcDrop(const QList<int> &idList, const QModelIndex &indexUp, const QModelIndex &indexLow,
                                     qreal x) const;
    /// Where those rows, given in tree order, would go with a step, as calcDrop tells it but for the
    /// level; empty where there is no such place. As with a drop, they stand together afterwards.
    Q_INVOKABLE QVariantMap calcStep(const QList<int> &idList, Step step) const;
    /// The tree as JSON text with id, name and folder flag of each item.
    Q_INVOKABLE QString getTreeJson() const;

    /// The default of the property, with a warning in the log, for an id without a record.
    Q_INVOKABLE QVariant getValue(int id, const QString &propertyName) const;
    /// What a new item has.
    Q_INVOKABLE QVariant getDefaultValue(const QString &propertyName) const;
    /// Changes the record and its row. "prohibited" of a folder goes to all items in it.
    Q_INVOKABLE void setValue(int id, const QString &propertyName, const QVariant &value);

    /// Why a name, key, condition or command can't be that text, for the user; empty if it can.
    Q_INVOKABLE QString getRefusal(const QString &text) const;

    /// Both add right after an item or at the end of a folder, and return the new id.
    Q_INVOKABLE int addItem(int targetId);
    Q_INVOKABLE int addFolder(int targetId);
    Q_INVOKABLE void changeItemName(const QModelIndex &index, const QString &name);
    /// The name itself if it is free, else the next free name of its kind.
    Q_INVOKABLE QString getValidName(const QString &candidate) const;
    Q_INVOKABLE void moveIdListBeforeIndex(const QModelIndex &baseIndex, const QList<int> &idList);
    Q_INVOKABLE void moveIdListIntoIndex(const QModelIndex &folderIndex, const QList<int> &idList);
    Q_INVOKABLE void deleteIdList(const QList<int> &idList);

    /// The root row, or the invisible root item when the model has no rows.
    QStandardItem *getRootItem() const;
    /// The first row with that id, depth first, or null.
    QStandardItem *findItemById(int id) const;

Q_SIGNALS:
    /// refreshPartial is about to take these rows of a folder, or to add rows at one place; a view can
    /// still close what it shows.
    void rowsAboutToGo(const QModelIndex &folder, int first, int last);
    void rowsAboutToCome();
    void errorOccurred(const QString &message);

private:
    using Item = TreeItem<TutorialItemData>;

    struct ProhibitedCounts
    {
        int prohibited = 0;
        int permitted = 0;
        bool folderChanged = false;
    };

    static QStandardItem *makeRow(const Item &item);
    /// Whether that changed one.
    static bool copyRoles(QStandardItem &row);
    static void appendRows(QStandardItem &parentRow, const QList<Item> &items);
    static void insertNewRows(QStandardItem &parentRow, int row, const QList<Item> &items, int first, int last);
    void reconcileRows(QStandardItem &parentRow, const Item &node);
    void reconcileStandingRow(QStandardItem &row, const Item &item);
    void removeGoneRows(QStandardItem &parentRow, const QList<Item> &children);
    static bool refreshRoles(QStandardItem &row, const Item &item);
    /// Of all folders; tells of those that have changed.
    void updateProhibitedStates();
    static ProhibitedCounts updateFolderProhibitedState(QStandardItem &row);
    static void setProhibitedBelow(const QStandardItem &row, bool prohibited);

    QHash<int, QByteArray> mRoleNames;
};
