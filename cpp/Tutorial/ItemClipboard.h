#pragma once

#include <QList>
#include <QString>

/// The work of the item clipboard on the document: items as JSON text, and back.
namespace ItemClipboard
{
/// The items of the list with all their contents, as text that carries all their fields across.
/// False, with a warning in the log and payload left alone, for an id without an item.
bool makePayload(const QList<int> &idList, QString &payload);

/// Appends the items of the text to the top level, with new ids and names that are free. The result
/// is the ids of those at the text's top level; empty for a text that holds no list.
///
/// While a transaction of the history is open, each item is an undo command.
QList<int> insertPayload(const QString &payload);
} // namespace ItemClipboard
