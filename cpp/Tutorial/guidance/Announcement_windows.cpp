#include "Tutorial/guidance/Announcement.h"

#include "Tutorial/guidance/StepSpeech.h"

#include <QAccessible>

// Qt raises UI Automation's event for notifications when a value changes to a text. An alert would only play a sound.
void Announcement::send(QAccessibleInterface *notification)
{
    const Speech speech{ notification->text(QAccessible::Name), notification->text(QAccessible::Description) };
    QAccessibleValueChangeEvent event(notification, speech.text());
    QAccessible::updateAccessibility(&event);
}
