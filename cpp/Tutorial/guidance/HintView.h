#pragma once

class QString;
class QTextDocument;
class QTextEdit;

/// How a hint is laid out: the one setting of the text edit that the guidance shows it in, for all who show or measure
/// one.
namespace HintView
{
/// Sets a text edit up, with that height.
void setUp(QTextEdit *textEdit, int height);

/// Gives the text edit that height, or what can be seen of it.
void setHeight(QTextEdit *textEdit, int height);

/// Gives the document the hint, which is plain text, and the text edit the document.
void show(QTextEdit *textEdit, QTextDocument *document, const QString &hint);

/// The height in pixels that shows all of the hint.
int height(const QTextEdit *textEdit);

/// The largest height that has room in the guidance's window.
int mostHeight();
} // namespace HintView
