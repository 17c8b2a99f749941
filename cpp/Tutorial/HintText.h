#pragma once

#include <QString>

class QTextEdit;

/// What of a text is laid out for the screen.
namespace HintText
{
/// The beginning of a text that a guidance window could ever show. A text without end would otherwise
/// cost seconds of layout for lines that are cut off anyway.
QString visiblePart(const QString &text);

/// Shows that part in a text edit, as plain or rich text as the text edit detects it. Rich text whose
/// layout could take without end is shown as plain text.
void showIn(QTextEdit *textEdit, const QString &text);

/// A plain text as rich text that shows every character as it stands: markup is escaped, a backslash
/// is set in the typewriter font, a line feed breaks the line.
QString toRichText(const QString &text);
} // namespace HintText
