// JSON text, read, asked for everything, changed and written.

#include "FuzzTarget.h"
#include "tool/JsonWrapper.h"
#include "tool/JsonWrapperException.h"

#include <functional>

using FuzzTarget::require;

namespace
{
/// As variants, which compare numbers by value: -0 is written as 0.
QVariant valueOf(const JsonWrapper &json)
{
    if (json.isArray())
        return json.toArray().toVariantList();
    if (json.isObject())
        return json.toObject().toVariantMap();
    return json.toValue().toVariant();
}

void writeAndRead(const JsonWrapper &json)
{
    for (const bool indented : { false, true }) {
        const QString text = json.toJson(indented);
        // A value alone is no JSON when it is indented.
        if (json.isUndefined() || text.isEmpty() || (indented && !json.isArray() && !json.isObject()))
            continue;
        // What is written has the precision of a double.
        const JsonWrapper once(text);
        require(valueOf(JsonWrapper(once.toJson(indented))) == valueOf(once), "what is written comes back");
    }
}

void change(JsonWrapper json)
{
    const QJsonValue value(QStringLiteral("new"));
    if (json.isArray()) {
        const int length = json.length();
        json.insert(length, value).insert(0, value).setEmptyObject(0);
        require(json.length() == length + 2 && json[0].isObject() && json[length + 1].toString() == value.toString(),
                "an array holds what was inserted");
    } else {
        json.set(QStringLiteral("new"), value).setEmptyArray(QString());
        require(json[QStringLiteral("new")].toString() == value.toString() && json[QString()].isArray(),
                "an object holds what was set");
    }
    writeAndRead(json);
}

/// Asks what does not fit too; that may throw only what the class says.
void ask(const JsonWrapper &json)
{
    const std::function<void()> questions[] = { [&] { json.length(); },  [&] { json.keys(); },
                                                [&] { json.toArray(); }, [&] { json.toObject(); },
                                                [&] { json.toValue(); }, [&] { json[0]; },
                                                [&] { json[-1]; },       [&] { json[QStringLiteral("missing")]; } };
    for (const auto &question : questions) {
        try {
            question();
        } catch (const JsonWrapperException &) { }
    }
    json.toString();
    json.toInt();
    json.toDouble();
    require(json.isArray() + json.isObject() + json.isNull() + json.isBool() + json.isDouble() + json.isString()
                    + json.isUndefined()
                <= 1,
            "a value has one type");
}

void visit(const JsonWrapper &json)
{
    ask(json);
    if (json.isArray()) {
        for (int i = 0; i < json.length(); ++i)
            visit(json[i]);
    } else if (json.isObject()) {
        for (const QString &key : json.keys())
            visit(json[key]);
    }
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes = FuzzTarget::bytesOf(data, size);
    const QString text = QString::fromUtf8(bytes);
    const JsonWrapper json(text);
    visit(json);
    writeAndRead(json);
    if (json.isArray() || json.isObject())
        change(json);

    // The reader drops a byte order mark at a text's start.
    for (const QString &value : { text, FuzzTarget::unitsOf(bytes) }) {
        const QString literal = QLatin1Char('"') + JsonWrapper::escapeJsonString(value) + QLatin1Char('"');
        require(value.startsWith(QChar::ByteOrderMark) || JsonWrapper(literal).toString() == value,
                "an escaped text comes back");
    }
    return 0;
}
