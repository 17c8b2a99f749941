#pragma once

#include <QDomDocument>
#include <QString>

/// The files of the translation sources, as functions without state. What fails is a warning in the log and a false
/// result.
namespace TranslationFile
{
/// Where the source of a locale lies: among what the writer edits, or among the resources.
QString path(const QString &locale, bool authoring);

/// Reads the file of a locale. The document is null when it can't be read.
bool read(const QString &path, QDomDocument &document);

/// Reads the file once more before it is written. A document that can't be read again is left as it was. Where the file
/// is missing or blank it stays, too, and a null one becomes one without messages: nothing can be lost by making a
/// file.
bool refresh(const QString &path, const QString &locale, QDomDocument &document);

/// Writes the file, and makes its folder. A null document, which was never read, is never written.
bool write(const QString &path, const QDomDocument &document);
} // namespace TranslationFile
