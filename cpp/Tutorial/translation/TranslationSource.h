#pragma once

#include <QDomDocument>
#include <QHash>
#include <QSet>
#include <QString>
#include <QVector>

/// The messages of a translation source document (the TS format of Qt's tools), read and set by
/// context and source text. Messages with a disambiguation and those with plural forms are neither
/// read nor changed.
namespace TranslationSource
{
/// The translations of one context, by source text.
using Messages = QHash<QString, QString>;

struct Entry
{
    QString source;
    QString translation;
};

/// The translations that are in force, by context. One that was dropped is not in force, nor is one
/// that is both unfinished and empty.
QHash<QString, Messages> readMessages(const QDomDocument &document);

/// The lines of the file in which the messages of a context begin, by source text. A message that is not in force has
/// one, too.
QHash<QString, int> readLines(const QDomDocument &document, const QString &context);

/// Sets translations of one context. A message that has the text already is left untouched; a new
/// one goes to the end of the context. No message is made for a translation that is the source
/// text, which is what a lookup gives without one.
void writeMessages(QDomDocument &document, const QString &context, const QVector<Entry> &entries);

/// The sources of a context whose translation is there but marked as unfinished: what it was made from has changed
/// since, or nobody has looked at it yet.
QSet<QString> staleSources(const QDomDocument &document, const QString &context);

/// Marks translations of one context as such, or takes the mark away. A message that is not named, or that has no
/// translation in force, is left untouched.
void markStale(QDomDocument &document, const QString &context, const QHash<QString, bool> &staleBySource);

/// A document without messages, for a language such as "ja_JP".
QDomDocument emptyDocument(const QString &language);
} // namespace TranslationSource
