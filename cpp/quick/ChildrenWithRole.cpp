#include "quick/ChildrenWithRole.h"

#include <QQuickItem>
#include <QTimer>

#include <algorithm>

QObject *ChildrenWithRole::attachedOf(const QObject *item)
{
    for (QObject *child : item->children()) {
        if (child->inherits("QQuickAccessibleAttached"))
            return child->property("ignored").toBool() ? nullptr : child;
    }
    return nullptr;
}

const QVector<QPointer<QQuickItem>> &ChildrenWithRole::items(bool fromTop)
{
    if (mValid)
        return mItems;
    mItems.clear();
    mWatch = std::make_unique<QObject>();
    collect(mParent);
    if (fromTop)
        sortFromTop();
    mValid = true;
    // Nothing tells of all that changes a place or a role.
    QTimer::singleShot(0, mWatch.get(), [this] { mValid = false; });
    return mItems;
}

void ChildrenWithRole::collect(const QQuickItem &item)
{
    // An item that goes leaves its parent first.
    QObject::connect(&item, &QQuickItem::childrenChanged, mWatch.get(), [this] { mValid = false; });
    for (QQuickItem *child : item.childItems()) {
        if (attachedOf(child))
            mItems.append(child);
        else
            collect(*child);
    }
}

void ChildrenWithRole::sortFromTop()
{
    QVector<std::pair<qreal, QPointer<QQuickItem>>> places;
    places.reserve(mItems.size());
    for (const auto &item : qAsConst(mItems))
        places.append({ item->mapToItem(&mParent, QPointF()).y(), item });
    std::stable_sort(places.begin(), places.end(), [](const auto &a, const auto &b) { return a.first < b.first; });
    std::transform(places.cbegin(), places.cend(), mItems.begin(), [](const auto &place) { return place.second; });
}
