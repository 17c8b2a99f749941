#include "support/WarningGuard.h"
#include "tool/JsonWrapper.h"
#include "tool/JsonWrapperException.h"

#include <QtTest>

#include <functional>

namespace
{
const QString kKey = QStringLiteral("a");

/// The same data in each kind of wrapper that can hold it, and last in none.
QVector<JsonWrapper> eachKind(const QString &json)
{
    const JsonWrapper doc(json);
    const JsonWrapper value = JsonWrapper(QStringLiteral("[%1]").arg(json))[0];
    return { doc, doc.isArray() ? JsonWrapper(doc.toArray()) : JsonWrapper(doc.toObject()), value, JsonWrapper() };
}

using Step = std::function<void(JsonWrapper &)>;

/// What the step raises, or a dash.
QString messageOf(const Step &step, JsonWrapper json)
{
    try {
        step(json);
    } catch (const JsonWrapperException &exception) {
        return exception.message();
    }
    return QStringLiteral("-");
}
} // namespace

class tst_JsonWrapper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { mWarnings.begin(); }
    void cleanup() { mWarnings.end(); }

    void readsText();
    void stepsInto();
    void raises();
    void writes();
    void jsonString();

private:
    WarningGuard mWarnings;
};

void tst_JsonWrapper::readsText()
{
    QCOMPARE(JsonWrapper(QStringLiteral("123")).toInt(), 123);
    QCOMPARE(JsonWrapper(QStringLiteral("\"abc\"")).toString(), QStringLiteral("abc"));
    mWarnings.expect(QStringLiteral("Json parse error"));
    const JsonWrapper bad(QStringLiteral("[1"));
    QVERIFY(bad.isNull() && !bad.isArray() && !bad.isObject());
    mWarnings.expect(QStringLiteral("jsonStr is empty."));
    QVERIFY(JsonWrapper(QString()).isUndefined());
}

void tst_JsonWrapper::stepsInto()
{
    for (const JsonWrapper &json : eachKind(QStringLiteral("[10,[20]]")).mid(0, 3)) {
        QCOMPARE(json[0].toInt(), 10);
        QCOMPARE(json[1].toJson(false), QStringLiteral("[20]"));
        QVERIFY(json[2].isUndefined() && json[-1].isUndefined());
        QCOMPARE(json.toJson(true), QStringLiteral("[\n    10,\n    [\n        20\n    ]\n]\n"));
    }
    const QVector<JsonWrapper> objects = eachKind(QStringLiteral("{\"a\":2.5,\"b\":null}"));
    for (const JsonWrapper &json : objects.mid(0, 3)) {
        QCOMPARE(json[kKey].toDouble(), 2.5);
        QVERIFY(json.contains(QStringLiteral("b")) && json[QStringLiteral("b")].isNull());
    }
    // A missing key reads as null, but in an object of its own.
    QVERIFY(objects.at(0)[QStringLiteral("c")].isNull() && objects.at(2)[QStringLiteral("c")].isNull());
    QCOMPARE(messageOf([](JsonWrapper &json) { json[QStringLiteral("c")]; }, objects.at(1)),
             QStringLiteral("mObject doesn't have key: c"));
}

void tst_JsonWrapper::raises()
{
    // How the message begins, and how it ends for a text, an array or object, a value and nothing.
    const QPair<Step, const char *> ofArray[] = {
        { [](JsonWrapper &json) { json[kKey]; },
          "[a] is applied for |mDoc which is not Object.|kArray.|kValue.|kMax." },
        { [](JsonWrapper &json) { json.toObject(); },
          "toObject(): |mDoc which is not Object.|applied for kArray.|applied for kValue.|applied for kMax." },
        { [](JsonWrapper &json) { json.keys(); },
          "keys() is called for |mDoc which is not Object.|kArray|kValue.|kMax." },
        { [](JsonWrapper &json) { json.contains(kKey); },
          "contains() is called for |mDoc which is not Object.|kArray.|kValue.|kMax." },
        { [](JsonWrapper &json) { json.set(kKey, 1); }, "set() is called for |kDoc.|kArray.|kValue.|kMax." },
        { [](JsonWrapper &json) { json.setEmptyArray(kKey); },
          "setEmptyArray(QString) is called for |kDoc.|kArray.|kValue.|kMax." },
        { [](JsonWrapper &json) { json.setEmptyObject(kKey); },
          "setEmptyObject(QString) is called for |kDoc.|kArray.|kValue.|kMax." },
        { [](JsonWrapper &json) { json = 1; }, "= is applied for |kDoc.|kArray.|kValue.|kMax." },
        { [](JsonWrapper &json) { json.set(1, 0); },
          "|index is out of range: 1|index is out of range: 1|index is out of range: 1|set() is called for kMax." },
        { [](JsonWrapper &json) { json.insert(-1, 0); },
          "|index is out of range: -1|index is out of range: -1|index is out of range: -1|set() is called for kMax." },
    };
    const QPair<Step, const char *> ofObject[] = {
        { [](JsonWrapper &json) { json[0]; }, "[index] is applied for |mDoc which is not Array.|-|-|kMax." },
        { [](JsonWrapper &json) { json.toArray(); }, "toArray() is called for |kDoc.|kObject.|kValue.|kMax." },
        { [](JsonWrapper &json) { json.toValue(); }, "toValue() is called for |kDoc.|kObject.|-|kMax." },
        { [](JsonWrapper &json) { json.length(); },
          "length() is called for |mDoc which is not Array.|kObject.|kValue.|kMax." },
        { [](JsonWrapper &json) { json.set(0, 1); }, "set() is called for |kDoc.|kObject.|kValue.|kMax." },
        { [](JsonWrapper &json) { json.insert(0, 1); }, "set() is called for |kDoc.|kObject.|kValue.|kMax." },
        { [](JsonWrapper &json) { json.setEmptyArray(0); },
          "setEmptyArray(int) is called for |kDoc.|kObject.|kValue.|kMax." },
    };
    const auto check = [](const QString &json, const QPair<Step, const char *> &row) {
        const QString begin = QLatin1String(row.second).left(int(strcspn(row.second, "|")));
        QStringList said{ begin };
        for (const JsonWrapper &wrapper : eachKind(json)) {
            const QString message = messageOf(row.first, wrapper);
            said.append(message.startsWith(begin) ? message.mid(begin.size()) : message);
        }
        QCOMPARE(said.join(QLatin1Char('|')), QLatin1String(row.second));
    };
    for (const auto &row : ofArray)
        check(QStringLiteral("[1]"), row);
    for (const auto &row : ofObject)
        check(QStringLiteral("{}"), row);
}

void tst_JsonWrapper::writes()
{
    for (JsonWrapper &json : eachKind(QStringLiteral("[1,{\"a\":1}]")).mid(0, 3)) {
        JsonWrapper copy = json;
        json.set(0, kKey);
        json.insert(2, 8);
        json[1].set(kKey, 2);
        QCOMPARE(json.toJson(false), QStringLiteral("[\"a\",{\"a\":1},8]"));
        QCOMPARE(copy.toJson(false), QStringLiteral("[1,{\"a\":1}]"));
        QCOMPARE(copy[1].set(kKey, 3).setEmptyArray(QStringLiteral("b")).toJson(false),
                 QStringLiteral("{\"a\":3,\"b\":[]}"));
    }
}

void tst_JsonWrapper::jsonString()
{
    const auto text = [](const QVariant &value) { return JsonWrapper::getJsonString(value); };
    QCOMPARE(text(std::numeric_limits<quint64>::max()), QStringLiteral("18446744073709551615"));
    QCOMPARE(text(QStringLiteral("q\" b\\ n\n c\u0001 \u3042/")),
             QStringLiteral("\"q\\\" b\\\\ n\\n c\\u0001 \u3042/\""));
    QCOMPARE(text(QVariantList{ 1, 0.1, QVariantList() }), QStringLiteral("[ 1, 0.1, [  ] ]"));
    QCOMPARE(text(QVariantHash{ { QStringLiteral("\""), QVariantList{ false } } }),
             QStringLiteral("{ \"\\\"\": [ false ] }"));
    mWarnings.expect(QStringLiteral("Unknown type"));
    QCOMPARE(text(QVariant()), QStringLiteral("?"));
}

QTEST_APPLESS_MAIN(tst_JsonWrapper)
#include "tst_JsonWrapper.moc"
