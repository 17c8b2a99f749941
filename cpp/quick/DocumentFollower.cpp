#include "quick/DocumentFollower.h"

#include "quick/TutorialItemListModel.h"
#include "tool/IdSet.h"
#include "TutorialEditor/Manager.h"
#include "UndoRedo/UndoRedo.h"

namespace
{
TreeDataTemplate<TutorialItemData> &document()
{
    return TutorialEditor::Manager::instance()->mData;
}
} // namespace

DocumentFollower::DocumentFollower(QObject *parent) : QObject(parent) { }

void DocumentFollower::setHistory(UndoRedo *history)
{
    if (mHistory)
        mHistory->disconnect(this);
    mHistory = history;
    if (!history)
        return;
    connect(history, &UndoRedo::stepped, this, &DocumentFollower::onStepped);
    connect(history, &UndoRedo::documentChanged, this, &DocumentFollower::schedule);
}

void DocumentFollower::setModel(TutorialItemListModel *model)
{
    if (mModel)
        mModel->disconnect(this);
    mModel = model;
    if (!model)
        return;
    connect(model, &QAbstractItemModel::rowsInserted, this, &DocumentFollower::onTreeChanged);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &DocumentFollower::onTreeChanged);
    connect(model, &QAbstractItemModel::modelReset, this, &DocumentFollower::onTreeChanged);
    connect(model, &QAbstractItemModel::dataChanged, this, &DocumentFollower::onDataChanged);
}

void DocumentFollower::onDataChanged(const QModelIndex &, const QModelIndex &, const QVector<int> &roles)
{
    if (roles.isEmpty() || roles.contains(TutorialItemListModel::RoleName))
        mTreeChanged = true;
}

void DocumentFollower::onStepped(const QList<int> &itemIds, bool back)
{
    mSteppedIds = itemIds;
    mSteppedBack = back;
}

void DocumentFollower::schedule()
{
    if (!mDue)
        QMetaObject::invokeMethod(this, "follow", Qt::QueuedConnection);
    mDue = true;
}

void DocumentFollower::follow()
{
    if (!mDue || !mModel)
        return;
    mDue = false;
    const QList<int> showIds = idsToShow();
    mSteppedIds.clear();
    mModel->refreshPartial();
    mModel->refreshRoles();
    Q_EMIT rowsFollowed();
    if (mTreeChanged)
        Q_EMIT treeChanged();
    mTreeChanged = false;
    Q_EMIT followed(showIds);
}

QList<int> DocumentFollower::idsToShow() const
{
    const QSet<int> ids = idSet(mSteppedIds);
    QList<int> tops;
    for (const int id : mSteppedIds) {
        if (!document().getData(id))
            continue;
        QSet<int> folders = idSet(document().getPathIds(id));
        folders.remove(id);
        if (!folders.intersects(ids))
            tops.append(id);
    }
    if (!tops.isEmpty() || ids.isEmpty())
        return tops;
    const int neighbour = mModel->getNextId(mSteppedIds, mSteppedBack);
    return neighbour < 0 ? tops : QList<int>{ neighbour };
}
