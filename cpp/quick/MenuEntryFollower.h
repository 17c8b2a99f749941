#pragma once

#include <QObject>

class QQuickItem;

/// Tells a screen reader where the keys are in a menu: the toolkit leaves the focus with the menu as a
/// whole. Lives with the entry's item.
class MenuEntryFollower : public QObject
{
    Q_OBJECT

public:
    /// Where the toolkit says nothing of a current entry, nothing is followed.
    static void follow(QQuickItem *entry);
    static bool isCurrent(const QQuickItem &entry);

private Q_SLOTS:
    void join();
    void tell();

private:
    explicit MenuEntryFollower(QQuickItem *entry);
};
