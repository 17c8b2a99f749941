#include "TutorialEditor/ScenarioText.h"

#include <QStringList>

namespace
{
void replaceFirst(QString &text, const QString &before, const QString &after)
{
    const int position = text.indexOf(before);
    if (position >= 0)
        text.replace(position, before.size(), after);
}

bool isLineComment(const QStringRef &line)
{
    int i = 0;
    while (i < line.size() && (line.at(i) == QLatin1Char(' ') || line.at(i) == QLatin1Char('\t')))
        ++i;
    return line.mid(i).startsWith(QLatin1String("//"));
}
} // namespace

QString ScenarioText::removeBlockComments(const QString &text)
{
    const QLatin1String opening("/*");
    const QLatin1String closing("*/");
    // A cut can join a new opening from what stood on its two sides, so the search goes on one
    // character before each cut, over what is kept and what is left.
    QString kept;
    kept.reserve(text.size());
    int position = 0;
    while (position < text.size()) {
        const QChar next = text.at(position);
        const bool joined = next == QLatin1Char('*') && kept.endsWith(QLatin1Char('/'));
        if (!joined) {
            kept.append(next);
            ++position;
            continue;
        }
        const int end = text.indexOf(closing, position + 1);
        if (end < 0)
            return kept + text.midRef(position);
        kept.chop(opening.size() - 1);
        position = end + closing.size();
    }
    return kept;
}

QString ScenarioText::removeLineComments(const QString &text)
{
    QString kept;
    kept.reserve(text.size());
    int start = 0;
    for (int end = text.indexOf(QLatin1Char('\n')); end >= 0; end = text.indexOf(QLatin1Char('\n'), start)) {
        if (!isLineComment(text.midRef(start, end - start)))
            kept.append(text.midRef(start, end + 1 - start));
        start = end + 1;
    }
    return kept + text.midRef(start);
}

QString ScenarioText::removeAssignment(const QString &text, const QString &variable)
{
    QString array = text;
    replaceFirst(array, QStringLiteral("var %1 = [").arg(variable), QStringLiteral("["));
    replaceFirst(array, QStringLiteral("];"), QStringLiteral("]"));
    return array;
}

QString ScenarioText::findUnreadable(const QString &text)
{
    // The end of the array and a comment, which the reader sees in strings too.
    for (const QLatin1String &part : { QLatin1String("];"), QLatin1String("/*") }) {
        if (text.contains(part))
            return part;
    }
    // With the quote that ends the string a translation call begins; one in the text is escaped.
    for (const QLatin1String &part : { QLatin1String("qsTr("), QLatin1String("QT_TRANSLATE_NOOP(") }) {
        if (text.endsWith(part))
            return part;
    }
    return QString();
}

QString ScenarioText::addAssignment(const QString &arrayText)
{
    int size = arrayText.size();
    while (size > 0 && (arrayText.at(size - 1) == QLatin1Char('\n') || arrayText.at(size - 1) == QLatin1Char('\r')))
        --size;
    return QStringLiteral("var scenario = ") + arrayText.leftRef(size) + QLatin1Char(';');
}
