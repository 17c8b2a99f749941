#pragma once

#include <QDomDocument>
#include <QString>
#include <QVector>

/// Hints on their way to a translator and back, in XLIFF files.
///
/// There the first hint is the source and the second one the target. The item's key stands beside them, with a mark of
/// the target as it was when it went out, so that what comes back tells what was translated.
namespace HintExchange
{
struct Header
{
    QString context; ///< the name of the tutorial
    QString sourceLocale;
    QString locale;
};

struct Entry
{
    int id = -1;
    QString name; ///< of the item, for the translator
    QString source;
    QString translation;
    bool finished = false; ///< else it is missing, or to be looked at
    QString mark; ///< when it is read: of the translation when it was written; empty where a tool has dropped it
};

/// A text as a file gives it back: without the characters that XML can't hold, and with line feeds as its line ends.
QString cleaned(const QString &text);
/// Whether an entry that was read was written with that translation. Without a mark it is none.
bool isAsWritten(const Entry &entry, const QString &translation);

/// Writes the file. The reason for a failure, for the user; empty when it is done.
QString write(const QString &path, const Header &header, const QVector<Entry> &entries);
/// Reads the entries of the tutorial from a file. It fails for a file of other languages, or without such entries.
QString read(const QString &path, const Header &header, QVector<Entry> &entries);
} // namespace HintExchange
