// Values as JSON text.

#include "tool/JsonWrapper.h"
#include "tool/Log.h"

namespace
{
QString escapeSequence(QChar character)
{
    switch (character.unicode()) {
    case '"':
        return QStringLiteral("\\\"");
    case '\\':
        return QStringLiteral("\\\\");
    case '\b':
        return QStringLiteral("\\b");
    case '\f':
        return QStringLiteral("\\f");
    case '\n':
        return QStringLiteral("\\n");
    case '\r':
        return QStringLiteral("\\r");
    case '\t':
        return QStringLiteral("\\t");
    default:
        return QStringLiteral("\\u%1").arg(character.unicode(), 4, 16, QLatin1Char('0'));
    }
}

/// Appends the text with the escapes that QJsonDocument writes, without making a document for it.
void appendEscaped(QString &json, const QString &text)
{
    int copied = 0;
    for (int i = 0; i < text.size(); ++i) {
        const QChar character = text.at(i);
        if (character.unicode() >= 0x20 && character != QLatin1Char('"') && character != QLatin1Char('\\')
            && !character.isSurrogate())
            continue;
        if (character.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            ++i;
            continue;
        }
        json += text.midRef(copied, i - copied);
        json += escapeSequence(character);
        copied = i + 1;
    }
    json += text.midRef(copied);
}
} // namespace

QString JsonWrapper::getJsonString(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return value.toString();
    case QMetaType::Double:
        return QStringLiteral("%1").arg(value.toDouble(), 0, 'g', -1);
    case QMetaType::QString: {
        QString json;
        appendJson(json, value.toString());
        return json;
    }
    case QMetaType::QVariantList: {
        QStringList elements;
        const QVariantList list = value.toList();
        for (const QVariant &element : list)
            elements.append(getJsonString(element));
        return QStringLiteral("[ %1 ]").arg(elements.join(QStringLiteral(", ")));
    }
    case QMetaType::QVariantHash: {
        QStringList entries;
        const QVariantHash hash = value.toHash();
        for (auto entry = hash.constBegin(); entry != hash.constEnd(); ++entry)
            entries.append(QStringLiteral("%1: %2").arg(getJsonString(entry.key()), getJsonString(entry.value())));
        return QStringLiteral("{ %1 }").arg(entries.join(QStringLiteral(", ")));
    }
    default:
        Log::warning("cpp/tool", "JsonWrapper::getJsonString", __LINE__) << "Unknown type" << value;
        return QStringLiteral("?");
    }
}

QString JsonWrapper::escapeJsonString(const QString &text)
{
    QString json;
    appendEscaped(json, text);
    return json;
}

void JsonWrapper::appendJson(QString &json, bool value)
{
    json += value ? QLatin1String("true") : QLatin1String("false");
}

void JsonWrapper::appendJson(QString &json, int value)
{
    json += QString::number(value);
}

void JsonWrapper::appendJson(QString &json, const QString &value)
{
    json += QLatin1Char('"');
    appendEscaped(json, value);
    json += QLatin1Char('"');
}
