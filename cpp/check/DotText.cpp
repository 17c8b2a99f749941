#include "check/DotText.h"

#include <QTextBoundaryFinder>

namespace
{
bool isPlain(const QString &text, int i)
{
    const QChar c = text.at(i);
    if (c.isHighSurrogate())
        return i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
    if (c.isLowSurrogate())
        return i > 0 && text.at(i - 1).isHighSurrogate();
    return c.unicode() >= 0x20 && (c.unicode() < 0x7f || c.unicode() > 0x9f) && c.unicode() < 0xfffe;
}

// About where the scripts with wide characters begin.
bool isWide(QChar c)
{
    return c.unicode() >= 0x1100 && (c.unicode() < 0x2000 || c.unicode() > 0x2e7f) && !c.isLowSurrogate();
}
} // namespace

QString DotText::quoted(const QString &text)
{
    QString result(QLatin1Char('"'));
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == QLatin1Char('\n'))
            result += QLatin1String("\\n");
        else if (c == QLatin1Char('"'))
            result += QLatin1String("\\\"");
        else if (c == QLatin1Char('\\'))
            result += QLatin1String("\\\\");
        else if (c == QLatin1Char('&'))
            result += QLatin1String("&amp;");
        else
            result += isPlain(text, i) ? c : QChar(QLatin1Char(' '));
    }
    return result + QLatin1Char('"');
}

QString DotText::cut(const QString &text, int columns)
{
    int width = 0;
    int fitting = 0; // with an ellipsis after it
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    for (int begin = 0; begin < text.size();) {
        const int end = finder.toNextBoundary();
        if (end <= begin)
            break;
        width += isWide(text.at(begin)) ? 2 : 1;
        if (width > columns)
            return text.left(fitting) + QChar(0x2026);
        if (width < columns)
            fitting = end;
        begin = end;
    }
    return text;
}

QString DotText::attribute(const char *name, const QString &value)
{
    return QLatin1Char(' ') + QLatin1String(name) + QLatin1Char('=') + quoted(value);
}
