#pragma once

#include "tool/TextMap.h"

#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>

/// Finds the translation calls in script text and evaluates them, as functions without state.
///
/// The text is looked at as characters, not parsed as a script. A string expression is a literal in
/// double quotes, or one of
///
///     qsTr("source")
///     QT_TRANSLATE_NOOP("context", "source")     with or without the blank
///
/// followed by any number of .arg(string expression). Blanks are allowed nowhere in the markers.
///
/// What can't be read is reported in errors, as translated messages, and left as it stands to the
/// end of the text.
namespace TranslatableText
{
/// Gives the translation of a source text in a context; the source text itself if there is none.
using Translate = std::function<QString(const QString &context, const QString &sourceText)>;

/// A backslash before each double quote and backslash.
QString escapeString(const QString &text);

/// Each backslash and the character after it become that character, whatever it is.
QString unescapeString(const QString &text);

/// The string literal, with its quotes, that the expression at the start of the text stands for;
/// what follows the expression goes to rest.
QString parseStringExpression(const QString &text, const QString &context, const Translate &translate, QString &rest,
                              QStringList &errors);

/// A whole scenario: all translation calls become literals, and line feeds at the end go.
QString applyToScenario(const QString &text, const QString &context, const Translate &translate, QStringList &errors);

/// What can't be read, in words, and where the text stands that can't.
struct Failure
{
    QString message;
    int position = 0;
};

/// The same, with the map led on to the text before. The failures stand where the map led to before.
QString applyToScenario(const QString &text, const QString &context, const Translate &translate,
                        QVector<Failure> &failures, TextMap &map);

/// The list of tutorials: all qsTr calls become literals.
QString applyToList(const QString &text, const QString &context, const Translate &translate, QStringList &errors);
} // namespace TranslatableText
