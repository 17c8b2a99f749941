#pragma once

#include <QByteArray>
#include <QDomDocument>
#include <QString>

/// The XML of a translation source (the TS format of Qt's tools), as functions without state: read and set so that all
/// its texts are still there when it is written again, also those of blanks alone and those that XML can't hold.
namespace TranslationXml
{
/// Reads a whole document. False, with the document left alone, for what is no XML or has bytes that can't be read.
bool parse(const QByteArray &bytes, QDomDocument &document);

/// The text of an element. It may hold "byte" elements for what XML can't.
QString textOf(const QDomElement &element);

/// Makes the text all that the element holds.
void setText(QDomElement &element, const QString &text);
} // namespace TranslationXml
