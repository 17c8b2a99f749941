#pragma once

#include <QString>

class QTextEdit;

/// What of a text is laid out for the screen.
///
/// A text is shown whole as long as its layout takes no noticeable time, which is far beyond what a
/// guidance window has room for. What counts is what comes out of the text, not its source: an inline
/// picture is one character.
namespace HintText
{
/// The beginning of a plain text up to the limit. A text without end would otherwise cost seconds of
/// layout for lines that are cut off anyway.
QString visiblePart(const QString &text);

/// Shows a text in a text edit, as plain or rich text as the text edit detects it. Rich text whose
/// layout could take without end is shown as the beginning of its plain text.
void showIn(QTextEdit *textEdit, const QString &text);

/// A rich text for who would load what it names. Where it does name something, or could take
/// without end to be laid out, it is its plain text as rich text.
QString withoutLoading(const QString &richText);

/// A plain text as rich text that shows every character as it stands: markup is escaped, a backslash
/// is set in the typewriter font, a line feed breaks the line.
QString toRichText(const QString &text);
} // namespace HintText
