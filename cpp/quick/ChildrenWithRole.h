#pragma once

#include <QPointer>
#include <QVector>

#include <memory>

class QQuickItem;

/// The items with a role that are next below an item, whatever items without one lie in between. They
/// are collected once for all that is asked of them in a turn of the event loop.
class ChildrenWithRole
{
    Q_DISABLE_COPY(ChildrenWithRole)

public:
    /// The toolkit's attached properties of an item; null where it has no role.
    static QObject *attachedOf(const QObject *item);

    explicit ChildrenWithRole(const QQuickItem &parent) : mParent(parent) { }

    /// In the order of the items, or from the top down. None is null.
    const QVector<QPointer<QQuickItem>> &items(bool fromTop);

private:
    void collect(const QQuickItem &item);
    void sortFromTop();

    const QQuickItem &mParent;
    QVector<QPointer<QQuickItem>> mItems;
    /// Receives what ends the validity of the items; none while they are to be collected anew.
    std::unique_ptr<QObject> mWatch;
    bool mValid = false;
};
