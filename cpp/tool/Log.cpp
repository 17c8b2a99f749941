#include "tool/Log.h"

#include <algorithm>

namespace
{
bool isPlain(QChar character)
{
    return character >= QLatin1Char(' ') && character <= QLatin1Char('~') && character != QLatin1Char('"')
        && character != QLatin1Char('\\');
}

/// The escape with one letter after the backslash, or a null character for what has none.
QChar escapeLetter(QChar character)
{
    switch (character.unicode()) {
    case '"':
    case '\\':
        return character;
    case '\n':
        return QLatin1Char('n');
    default:
        return QChar();
    }
}

/// What a stream makes of a character that has a longer escape, or a rare one.
QString escaped(const QString &character)
{
    QString quoted;
    QDebug(&quoted).nospace() << character;
    return quoted.mid(1, quoted.size() - 2);
}

bool isPrintable(const QString &text, int position, int size)
{
    if (size == 2)
        return QChar::isPrint(QChar::surrogateToUcs4(text.at(position), text.at(position + 1)));
    return text.at(position) > QLatin1Char('~') && text.at(position).isPrint();
}

/// Appends the text as a stream does, which writes one of many lines piece by piece.
void appendQuoted(QString &line, const QString &text)
{
    line += QLatin1Char('"');
    const int start = line.size();
    // Room for a backslash before each character; longer escapes make more.
    line.resize(start + 2 * text.size());
    QChar *out = line.data() + start;
    int size = 1;
    for (int position = 0; position < text.size(); position += size) {
        const QChar character = text.at(position);
        size = 1;
        if (isPlain(character)) {
            *out++ = character;
            continue;
        }
        const QChar letter = escapeLetter(character);
        if (!letter.isNull()) {
            *out++ = QLatin1Char('\\');
            *out++ = letter;
            continue;
        }
        if (character.isHighSurrogate() && position + 1 < text.size() && text.at(position + 1).isLowSurrogate())
            size = 2;
        if (isPrintable(text, position, size)) {
            out = std::copy_n(text.begin() + position, size, out);
            continue;
        }
        const QString escape = escaped(text.mid(position, size));
        const auto used = out - line.data();
        line.resize(line.size() + escape.size());
        out = std::copy(escape.begin(), escape.end(), line.data() + used);
    }
    line.truncate(static_cast<int>(out - line.data()));
    line += QLatin1Char('"');
}

/// The start of a line that holds the texts.
template <typename Texts>
QString begin(const char *folder, const char *function, int line, const Texts &texts)
{
    int size = 128;
    for (const QString &text : texts)
        size += 2 * text.size() + 4;
    QString message;
    message.reserve(size);
    message += QLatin1String(folder);
    message += QLatin1Char(' ');
    message += QLatin1String(function);
    message += QLatin1Char(' ');
    message += QString::number(line);
    message += QLatin1Char(' ');
    return message;
}

template <typename Texts>
void append(QString &message, const Texts &texts, const QLatin1String &separator)
{
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        if (text != texts.begin())
            message += separator;
        appendQuoted(message, *text);
    }
}
} // namespace

void Log::debugTexts(const char *folder, const char *function, int line, const QStringList &texts)
{
    QString message = begin(folder, function, line, texts);
    message += QLatin1Char('(');
    append(message, texts, QLatin1String(", "));
    message += QLatin1Char(')');
    qt_message_output(QtDebugMsg, QMessageLogContext(), message);
}

void Log::debugEachText(const char *folder, const char *function, int line, std::initializer_list<QString> texts)
{
    QString message = begin(folder, function, line, texts);
    append(message, texts, QLatin1String(" "));
    qt_message_output(QtDebugMsg, QMessageLogContext(), message);
}
