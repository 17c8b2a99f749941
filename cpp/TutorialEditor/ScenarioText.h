#pragma once

#include "tool/TextMap.h"

#include <QString>

/// The text steps of a scenario file's reader and writer, as functions without state.
///
/// A scenario file is a script that assigns an array to "scenario"; the array is JSON but for the
/// hints, which may be translation calls. Where a map is given, a step of it tells what was cut.
namespace ScenarioText
{
/// Cuts each block comment, in strings too; an unclosed one stays.
QString removeBlockComments(const QString &text, TextMap *map = nullptr);

/// Cuts each line whose first characters after blanks and tabs are two slashes. A last line without
/// a line feed stays.
QString removeLineComments(const QString &text, TextMap *map = nullptr);

/// The array without its assignment to that variable: the first "var scenario = [" becomes "[" and
/// the first "];" becomes "]".
QString removeAssignment(QString text, const QString &variable = QStringLiteral("scenario"), TextMap *map = nullptr);

/// The part of a name, key, condition or command that keeps a file that holds this text from being
/// read again; empty if nothing does.
QString findUnreadable(const QString &text);

/// The assignment of the array, which loses the line ends at its end.
QString addAssignment(QString arrayText);
} // namespace ScenarioText
