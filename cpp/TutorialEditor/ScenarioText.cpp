#include "TutorialEditor/ScenarioText.h"

#include "tool/TextSearch.h"

#include <QStringList>

namespace
{
void replaceFirst(QString &text, int position, int size, const QLatin1String &after, TextMap *map)
{
    if (position < 0)
        return;
    text.replace(position, size, after);
    if (!map)
        return;
    TextMap::Step step;
    step.append(position + after.size(), position + size);
    map->append(step);
}

/// Where the line begins if only blanks and tabs stand before the position, else -1.
int startOfBlankLine(const QString &text, int position)
{
    while (position > 0 && (text.at(position - 1) == QLatin1Char(' ') || text.at(position - 1) == QLatin1Char('\t')))
        --position;
    return position == 0 || text.at(position - 1) == QLatin1Char('\n') ? position : -1;
}
} // namespace

QString ScenarioText::removeBlockComments(const QString &text, TextMap *map)
{
    const QLatin1String opening("/*");
    const QLatin1String closing("*/");
    // A cut can join a new opening from what stood on its two sides, so an opening is what ends in a
    // star after what is kept.
    QString kept;
    TextMap::Step step;
    int position = 0;
    int star = text.indexOf(QLatin1Char('*'));
    while (star >= 0) {
        const QChar before = star > position ? text.at(star - 1) : kept.isEmpty() ? QChar() : kept.back();
        if (before != QLatin1Char('/')) {
            star = text.indexOf(QLatin1Char('*'), star + 1);
            continue;
        }
        const int end = indexOfMarker(text, closing, star + 1);
        if (end < 0)
            break;
        kept.append(text.midRef(position, star - position));
        kept.chop(opening.size() - 1);
        position = end + closing.size();
        step.append(kept.size(), position);
        star = text.indexOf(QLatin1Char('*'), position);
    }
    if (map)
        map->append(step);
    return position == 0 ? text : kept + text.midRef(position);
}

QString ScenarioText::removeLineComments(const QString &text, TextMap *map)
{
    const QLatin1String opening("//");
    QString kept;
    TextMap::Step step;
    int position = 0;
    int found = indexOfMarker(text, opening);
    while (found >= 0) {
        const int start = startOfBlankLine(text, found);
        if (start < 0) {
            found = indexOfMarker(text, opening, found + 1);
            continue;
        }
        const int end = text.indexOf(QLatin1Char('\n'), found);
        if (end < 0)
            break;
        kept.append(text.midRef(position, start - position));
        position = end + 1;
        step.append(kept.size(), position);
        found = indexOfMarker(text, opening, position);
    }
    if (map)
        map->append(step);
    return position == 0 ? text : kept + text.midRef(position);
}

QString ScenarioText::removeAssignment(QString text, const QString &variable, TextMap *map)
{
    const QString opening = QStringLiteral("var %1 = [").arg(variable);
    replaceFirst(text, text.indexOf(opening), opening.size(), QLatin1String("["), map);
    const QLatin1String closing("];");
    replaceFirst(text, indexOfMarker(text, closing), closing.size(), QLatin1String("]"), map);
    return text;
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

QString ScenarioText::addAssignment(QString arrayText)
{
    while (arrayText.endsWith(QLatin1Char('\n')) || arrayText.endsWith(QLatin1Char('\r')))
        arrayText.chop(1);
    arrayText += QLatin1Char(';');
    arrayText.prepend(QLatin1String("var scenario = "));
    return arrayText;
}
