#include "Tutorial/guidance/Announcement.h"

#include <QAccessible>

// A notification that is shown is spoken.
void Announcement::send(QAccessibleInterface *notification)
{
    QAccessibleEvent event(notification, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&event);
}
