#include "check/ProblemText.h"

#include <QJsonValue>

#include <algorithm>

namespace
{
/// What programs read: the same in every language.
QLatin1String severityWord(Problem::Severity severity)
{
    static const char *const words[] = { "error", "warning", "remark" };
    return QLatin1String(words[int(severity)]);
}

bool isControl(QChar character)
{
    const QChar::Category category = character.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line
        || category == QChar::Separator_Paragraph;
}

/// The item by its name and id, empty for the tutorial as a whole.
QString itemText(const Problem &problem)
{
    if (problem.itemId == -1)
        return QString();
    const QString id = QStringLiteral("#%1").arg(problem.itemId);
    return problem.itemName.isEmpty() ? id : QStringLiteral("%1 (%2)").arg(problem.itemName, id);
}
} // namespace

QString ProblemText::line(const Problem &problem)
{
    QString text = problem.file;
    if (problem.line > 0)
        text += QLatin1Char(':') + QString::number(problem.line);
    text += QLatin1String(": ") + severityWord(problem.severity) + QLatin1String(": ");
    const QString name = itemText(problem);
    if (!name.isEmpty())
        text += name + QLatin1String(": ");
    text += problem.text + QLatin1String(" [") + problem.rule + QLatin1Char(']');
    // A name, or a value that a text quotes, may hold what ends the line, or what a terminal obeys.
    std::replace_if(text.begin(), text.end(), isControl, QLatin1Char(' '));
    return text;
}

QJsonObject ProblemText::json(const Problem &problem)
{
    return {
        { QStringLiteral("file"), problem.file },
        { QStringLiteral("line"), problem.line },
        { QStringLiteral("severity"), severityWord(problem.severity) },
        { QStringLiteral("rule"), problem.rule },
        { QStringLiteral("id"), problem.itemId == -1 ? QJsonValue() : QJsonValue(problem.itemId) },
        { QStringLiteral("name"), problem.itemName },
        { QStringLiteral("text"), problem.text },
    };
}
