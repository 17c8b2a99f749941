#pragma once

#include "quick/TutorialItemListModel.h"
#include "TutorialEditor/Manager.h"

namespace ModelRows
{
/// A folder is prohibited that holds items, all of them prohibited.
inline bool isProhibited(const TreeItem<TutorialItemData> &item)
{
    int items = 0;
    int prohibited = 0;
    item.visitAll([&](const TreeItem<TutorialItemData> &each) {
        items += !each.mFolder;
        prohibited += !each.mFolder && TutorialEditor::Manager::instance()->mData.getData(each.mId)->mProhibited;
    });
    return items > 0 && items == prohibited;
}

inline QString difference(const QModelIndex &row, const TreeItem<TutorialItemData> &item)
{
    using Model = TutorialItemListModel;
    const QList<TreeItem<TutorialItemData>> &children = item.mChildren;
    const TutorialItemData *record =
        item.mId < 0 ? nullptr : TutorialEditor::Manager::instance()->mData.getData(item.mId);
    const bool same = row.data(Model::RoleId) == item.mId && row.data(Model::RoleFolder) == item.mFolder
        && row.data(Model::RoleName) == (record ? record->mName : QStringLiteral("/"))
        && row.data(Model::RoleProhibited).toBool() == isProhibited(item)
        && (!record || (row.data(Model::RoleIcon) == record->mIcon && row.data(Model::RoleJump) == record->mJump))
        && row.model()->rowCount(row) == children.size();
    QString different = same ? QString() : QStringLiteral("row of item %1").arg(item.mId);
    for (int i = 0; i < children.size() && different.isEmpty(); ++i)
        different = difference(row.model()->index(i, 0, row), children.at(i));
    return different;
}

/// Empty, or the first row that does not show what the document holds.
inline QString difference(const TutorialItemListModel &model)
{
    return difference(model.getRootIndex(), TutorialEditor::Manager::instance()->mData.mRoot);
}
} // namespace ModelRows
