// The file of a copy: a line with a check sum of all that comes after it, and a JSON object.

#include "Tutorial/recovery/RecoveryCopy.h"

#include "tool/JsonWrapper.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace
{
constexpr char kHeading[] = "Trelvane recovery 1 ";

QByteArray headingOf(const QByteArray &json)
{
    return kHeading + QCryptographicHash::hash(json, QCryptographicHash::Sha1).toHex() + '\n';
}

// Written as text: objects of JSON take each new key by a walk over those that they have.

void append(QString &json, const QString &key, const QString &value)
{
    JsonWrapper::appendJson(json, key);
    json += QLatin1Char(':');
    JsonWrapper::appendJson(json, value);
    json += QLatin1String(",\n");
}

void beginObject(QString &json, const char *key)
{
    JsonWrapper::appendJson(json, QString(QLatin1String(key)));
    json += QLatin1String(":{\n");
}

void endObject(QString &json)
{
    if (json.endsWith(QLatin1String(",\n")))
        json.chop(2);
    json += QLatin1String("},\n");
}

void append(QString &json, const char *key, const TutorialState::Hints &hints)
{
    beginObject(json, key);
    for (auto language = hints.cbegin(); language != hints.cend(); ++language) {
        beginObject(json, language.key().toUtf8().constData());
        for (auto hint = language->cbegin(); hint != language->cend(); ++hint)
            append(json, hint.key(), hint.value());
        endObject(json);
    }
    endObject(json);
}

TutorialState::Hints readHints(const QJsonObject &object)
{
    TutorialState::Hints hints;
    for (auto language = object.constBegin(); language != object.constEnd(); ++language) {
        QHash<QString, QString> &texts = hints[language.key()];
        const QJsonObject entries = language.value().toObject();
        for (auto hint = entries.constBegin(); hint != entries.constEnd(); ++hint)
            texts.insert(hint.key(), hint.value().toString());
    }
    return hints;
}

QJsonObject staleObject(const RecoveryCopy &copy)
{
    QJsonObject object;
    for (auto keys = copy.state.stale.cbegin(); keys != copy.state.stale.cend(); ++keys)
        object.insert(keys.key(), QJsonArray::fromStringList(keys->values()));
    return object;
}

/// The parts that are small whatever the tutorial's size is.
QJsonObject smallParts(const RecoveryCopy &copy)
{
    return { { QStringLiteral("fileHash"), QString::fromLatin1(copy.fileHash.toHex()) },
             { QStringLiteral("stale"), staleObject(copy) },
             { QStringLiteral("leftOut"), QJsonArray::fromStringList(copy.leftOut) } };
}
} // namespace

QByteArray RecoveryCopy::toBytes() const
{
    QString json = QStringLiteral("{\n");
    append(json, QStringLiteral("path"), path);
    // It is JSON as it stands.
    json += QLatin1String("\"array\":");
    json += state.array;
    json += QLatin1String(",\n");
    append(json, "hints", state.hints);
    append(json, "loadedHints", loadedHints);
    QByteArray bytes = json.toUtf8();
    bytes += QJsonDocument(smallParts(*this)).toJson(QJsonDocument::Compact).mid(1);
    return headingOf(bytes) + bytes;
}

bool RecoveryCopy::read(const QByteArray &bytes)
{
    const int end = bytes.indexOf('\n') + 1;
    const QByteArray json = bytes.mid(end);
    if (!bytes.startsWith(headingOf(json)))
        return false;
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isObject())
        return false;
    const QJsonObject object = document.object();
    path = object.value(QLatin1String("path")).toString();
    state.array =
        QString::fromUtf8(QJsonDocument(object.value(QLatin1String("array")).toArray()).toJson(QJsonDocument::Compact));
    state.hints = readHints(object.value(QLatin1String("hints")).toObject());
    loadedHints = readHints(object.value(QLatin1String("loadedHints")).toObject());
    fileHash = QByteArray::fromHex(object.value(QLatin1String("fileHash")).toString().toLatin1());
    state.stale.clear();
    const QJsonObject languages = object.value(QLatin1String("stale")).toObject();
    for (auto language = languages.constBegin(); language != languages.constEnd(); ++language) {
        QSet<QString> &keys = state.stale[language.key()];
        for (const QJsonValue key : language->toArray())
            keys.insert(key.toString());
    }
    leftOut.clear();
    for (const QJsonValue line : object.value(QLatin1String("leftOut")).toArray())
        leftOut.append(line.toString());
    return true;
}
