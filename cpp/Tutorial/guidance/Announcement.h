#pragma once

class QAccessibleInterface;

/// How a screen reader is made to speak on its own, which each of the accessibility interfaces has its way for.
namespace Announcement
{
/// Has the name and the description of a notification spoken, once.
void send(QAccessibleInterface *notification);
} // namespace Announcement
