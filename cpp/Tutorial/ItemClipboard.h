#pragma once

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>

/// The work of the item clipboard on the document: items as JSON text, and back.
namespace ItemClipboard
{
/// The items of the list with all their contents, as text that carries all their fields across.
/// Those of the stale ids are marked as such. False, with a warning in the log and payload left alone, for an id
/// without an item.
bool makePayload(const QList<int> &idList, QString &payload, const QSet<int> &staleIds = {});

/// Where the second hint of an inserted item comes from: what the reader looks up by the key of the
/// item that was copied, or the text itself, which only the authoring mode has at the copy.
enum class SecondHints { LookedUp, Copied };

/// Appends the items of the text to the top level, with new ids and names that are free. The result
/// is the ids of those at the text's top level; empty for a text that holds no list.
///
/// While a transaction of the history is open, each item is an undo command. Where the second hints are copied,
/// staleById tells of each new item whether that of the copied one was stale.
QList<int> insertPayload(const QString &payload, SecondHints secondHints, QHash<int, bool> *staleById = nullptr);
} // namespace ItemClipboard
