#include "Transcript.h"

#include "Tutorial/link/HostMessages.h"

#include <QStringList>
#include <QTextStream>

#include <cstdio>

namespace
{
constexpr int kLongestField = 96;

void print(const char *mark, const QString &text)
{
    QTextStream stream(stdout);
    stream.setCodec("UTF-8");
    stream << QLatin1String(mark) << ' ' << text << '\n';
}
} // namespace

QString Transcript::printable(const QString &message)
{
    QStringList fields;
    for (QString field : HostMessages::split(message)) {
        const int size = field.size();
        if (size > kLongestField)
            field = field.left(kLongestField) + QStringLiteral("... (%1 characters)").arg(size);
        field.replace(QLatin1Char('\r'), QLatin1String("\\r"));
        field.replace(QLatin1Char('\n'), QLatin1String("\\n"));
        fields.append(field);
    }
    return fields.join(QStringLiteral(" | "));
}

void Transcript::sent(const QString &message)
{
    print("-->", printable(message));
}

void Transcript::received(const QString &message)
{
    print("<--", printable(message));
}

void Transcript::remark(const QString &text)
{
    print("***", text);
}
