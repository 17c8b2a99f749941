#include "tool/Log.h"

#include <algorithm>

namespace
{
bool isPlain(QChar character)
{
    return character >= QLatin1Char(' ') && character <= QLatin1Char('~') && character != QLatin1Char('"')
        && character != QLatin1Char('\\');
}

/// A stream escapes character by character; most texts have nothing to escape.
void appendQuoted(QString &line, const QString &text)
{
    if (std::all_of(text.begin(), text.end(), isPlain)) {
        line += QLatin1Char('"');
        line += text;
        line += QLatin1Char('"');
    } else {
        QString quoted;
        QDebug(&quoted).nospace() << text;
        line += quoted;
    }
}
} // namespace

void Log::debugTexts(const char *folder, const char *function, int line, const QStringList &texts)
{
    QString message = QLatin1String(folder) + QLatin1Char(' ') + QLatin1String(function) + QLatin1Char(' ')
        + QString::number(line) + QLatin1String(" (");
    for (int i = 0; i < texts.size(); ++i) {
        if (i > 0)
            message += QLatin1String(", ");
        appendQuoted(message, texts.at(i));
    }
    message += QLatin1Char(')');
    qt_message_output(QtDebugMsg, QMessageLogContext(), message);
}
