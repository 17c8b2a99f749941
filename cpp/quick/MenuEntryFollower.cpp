#include "quick/MenuEntryFollower.h"

#include <QAccessible>
#include <QMetaProperty>
#include <QQuickItem>
#include <QTimer>

namespace
{
QObject *styleDataOf(const QObject &entry)
{
    return entry.property("styleData").value<QObject *>();
}
} // namespace

void MenuEntryFollower::follow(QQuickItem *entry)
{
    if (!entry->findChild<MenuEntryFollower *>(QString(), Qt::FindDirectChildrenOnly))
        new MenuEntryFollower(entry);
}

bool MenuEntryFollower::isCurrent(const QQuickItem &entry)
{
    const QObject *data = styleDataOf(entry);
    return data && data->property("selected").toBool();
}

MenuEntryFollower::MenuEntryFollower(QQuickItem *entry) : QObject(entry)
{
    // The entry may be in the making.
    QTimer::singleShot(0, this, &MenuEntryFollower::join);
}

void MenuEntryFollower::join()
{
    QObject *data = styleDataOf(*parent());
    const int index = data ? data->metaObject()->indexOfProperty("selected") : -1;
    if (index < 0)
        return;
    const int slot = metaObject()->indexOfSlot("tell()");
    connect(data, data->metaObject()->property(index).notifySignal(), this, metaObject()->method(slot));
    tell();
}

void MenuEntryFollower::tell()
{
    const auto *entry = static_cast<QQuickItem *>(parent());
    if (!entry->isVisible() || !isCurrent(*entry))
        return;
    QAccessibleEvent event(parent(), QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}
