#include "tool/JsonWrapper.h"
#include "tool/JsonWrapperException.h"

#include <QtTest>

#include <functional>

using Step = std::function<void(JsonWrapper &)>;

Q_DECLARE_METATYPE(JsonWrapper)
Q_DECLARE_METATYPE(Step)

namespace
{
const QString kKey = QStringLiteral("a");

JsonWrapper doc(const char *json)
{
    return JsonWrapper(QString::fromUtf8(json));
}

JsonWrapper array(const char *json)
{
    return JsonWrapper(doc(json).toArray());
}

JsonWrapper object(const char *json)
{
    return JsonWrapper(doc(json).toObject());
}

// The same data as a value, which the wrapper of an enclosing array gives.
JsonWrapper value(const char *json)
{
    return JsonWrapper(QStringLiteral("[%1]").arg(QString::fromUtf8(json)))[0];
}

QString raisedBy(const Step &step, JsonWrapper wrapper)
{
    try {
        step(wrapper);
    } catch (const JsonWrapperException &exception) {
        return exception.message();
    }
    return QStringLiteral("nothing raised");
}
} // namespace

class tst_JsonWrapper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parse_data();
    void parse();
    void stepInto_data();
    void stepInto();
    void scalars_data();
    void scalars();
    void describe();
    void raise_data();
    void raise();
    void raiseOneByOne_data();
    void raiseOneByOne();
    void write_data();
    void write();
    void writeEveryType();
    void copiesAreIndependent();
    void writeText_data();
    void writeText();
    void jsonString_data();
    void jsonString();
};

void tst_JsonWrapper::parse_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("json");
    QTest::addColumn<QString>("tests"); // the first letters of the type tests that are true
    QTest::addColumn<QString>("warning");
    const auto row = [](const char *text, JsonWrapper::Kind kind, const char *json, const char *tests,
                        const char *warning = "") {
        QTest::newRow(*text ? text : "empty") << QString::fromUtf8(text) << int(kind) << QString::fromUtf8(json)
                                              << QString::fromLatin1(tests) << QString::fromLatin1(warning);
    };
    row("[1,2]", JsonWrapper::kDoc, "[1,2]", "a");
    row("{\"a\":[]}", JsonWrapper::kDoc, "{\"a\":[]}", "o");
    row("123", JsonWrapper::kValue, "123", "d");
    row("\"\u3042\"", JsonWrapper::kValue, "\"\u3042\"", "s");
    row("true", JsonWrapper::kValue, "true", "b");
    row("null", JsonWrapper::kValue, "null", "n");
    row("", JsonWrapper::kMax, "", "u", "jsonStr is empty\\.");
    row("[1,", JsonWrapper::kDoc, "", "n", "Json parse error.*\\[1,");
    row("{} x", JsonWrapper::kDoc, "", "n", "Json parse error.*\\{\\} x");
}

void tst_JsonWrapper::parse()
{
    QFETCH(QString, text);
    QFETCH(QString, warning);
    if (!warning.isEmpty())
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(warning));
    const JsonWrapper json(text);
    QTEST(int(json.kind()), "kind");
    QTEST(json.toJson(false), "json");

    QString tests;
    const auto note = [&tests](bool test, char letter) {
        if (test)
            tests += QLatin1Char(letter);
    };
    note(json.isArray(), 'a');
    note(json.isObject(), 'o');
    note(json.isNull(), 'n');
    note(json.isBool(), 'b');
    note(json.isDouble(), 'd');
    note(json.isString(), 's');
    note(json.isUndefined(), 'u');
    QTEST(tests, "tests");
}

void tst_JsonWrapper::stepInto_data()
{
    QTest::addColumn<JsonWrapper>("json");
    QTest::addColumn<QVariant>("step");
    QTest::addColumn<QString>("result"); // "undefined", or the text that is read
    const char *list = "[10,[20]]";
    const char *map = "{\"a\":1,\"7\":\"seven\"}";
    for (const auto &json : { doc(list), array(list), value(list) }) {
        const int kind = json.kind();
        QTest::addRow("first, kind %d", kind) << json << QVariant(0) << QStringLiteral("10");
        QTest::addRow("nested, kind %d", kind) << json << QVariant(1) << QStringLiteral("[20]");
        QTest::addRow("end, kind %d", kind) << json << QVariant(2) << QStringLiteral("undefined");
        QTest::addRow("negative, kind %d", kind) << json << QVariant(-1) << QStringLiteral("undefined");
    }
    for (const auto &json : { doc(map), object(map), value(map) }) {
        const int kind = json.kind();
        QTest::addRow("key, kind %d", kind) << json << QVariant(kKey) << QStringLiteral("1");
        if (json.kind() != JsonWrapper::kObject)
            QTest::addRow("missing key, kind %d", kind)
                << json << QVariant(QStringLiteral("b")) << QStringLiteral("null");
        if (json.kind() != JsonWrapper::kDoc)
            QTest::addRow("number as key, kind %d", kind) << json << QVariant(7) << QStringLiteral("\"seven\"");
    }
}

void tst_JsonWrapper::stepInto()
{
    QFETCH(JsonWrapper, json);
    QFETCH(QVariant, step);
    const JsonWrapper reached = step.userType() == QMetaType::Int ? json[step.toInt()] : json[step.toString()];
    QCOMPARE(reached.kind(), JsonWrapper::kValue);
    QTEST(reached.isUndefined() ? QStringLiteral("undefined") : reached.toJson(false), "result");
}

void tst_JsonWrapper::scalars_data()
{
    QTest::addColumn<JsonWrapper>("json");
    QTest::addColumn<bool>("toBool");
    QTest::addColumn<double>("toDouble");
    QTest::addColumn<int>("toInt");
    QTest::addColumn<QString>("toString");
    QTest::newRow("bool") << value("true") << true << 0.0 << 0 << QString();
    QTest::newRow("int") << value("-5") << false << -5.0 << -5 << QString();
    QTest::newRow("fraction") << value("2.5") << false << 2.5 << 0 << QString();
    QTest::newRow("text") << value("\"12\"") << false << 0.0 << 0 << QStringLiteral("12");
    QTest::newRow("null") << value("null") << false << 0.0 << 0 << QString();
    QTest::newRow("nothing") << JsonWrapper() << false << 0.0 << 0 << QString();
}

void tst_JsonWrapper::scalars()
{
    QFETCH(JsonWrapper, json);
    QTEST(json.toBool(), "toBool");
    QTEST(json.toDouble(), "toDouble");
    QTEST(json.toInt(), "toInt");
    QTEST(json.toString(), "toString");
}

void tst_JsonWrapper::describe()
{
    QCOMPARE(doc("[]").toString(), QStringLiteral("kDoc"));
    QCOMPARE(array("[1,2]").toString(), QStringLiteral("kArray(2)"));
    QCOMPARE(object("{\"b\":1,\"a\":2}").toString(), QStringLiteral("kObject(a, b)"));
    QCOMPARE(object("{\"b\":1,\"a\":2}").keys(), (QStringList{ kKey, QStringLiteral("b") }));
    QCOMPARE(value("[1,2,3]").length(), 3);
    QVERIFY(value("{\"a\":null}").contains(kKey));
}

void tst_JsonWrapper::raise_data()
{
    QTest::addColumn<bool>("wantsArray");
    QTest::addColumn<Step>("step");
    QTest::addColumn<QString>("message"); // %1 is what the step was applied to
    QTest::addColumn<QString>("onDoc"); // what stands there for a document
    const auto row = [](bool wantsArray, const char *message, const char *onDoc, const Step &step) {
        QTest::newRow(message) << wantsArray << step << QString::fromLatin1(message) << QString::fromLatin1(onDoc);
    };
    const char *noArray = "mDoc which is not Array";
    const char *noObject = "mDoc which is not Object";
    row(false, "[a] is applied for %1.", noObject, [](JsonWrapper &json) { json[kKey]; });
    row(true, "toArray() is called for %1.", "kDoc", [](JsonWrapper &json) { json.toArray(); });
    row(true, "length() is called for %1.", noArray, [](JsonWrapper &json) { json.length(); });
    row(false, "contains() is called for %1.", noObject, [](JsonWrapper &json) { json.contains(kKey); });
    row(false, "set() is called for %1.", "kDoc", [](JsonWrapper &json) { json.set(kKey, 1); });
    row(true, "set() is called for %1.", "kDoc", [](JsonWrapper &json) { json.set(0, 1); });
    row(true, "set() is called for %1.", "kDoc", [](JsonWrapper &json) { json.insert(0, 1); });
    row(false, "setEmptyArray(QString) is called for %1.", "kDoc", [](JsonWrapper &json) { json.setEmptyArray(kKey); });
    row(true, "setEmptyArray(int) is called for %1.", "kDoc", [](JsonWrapper &json) { json.setEmptyArray(0); });
    row(false, "setEmptyObject(QString) is called for %1.", "kDoc",
        [](JsonWrapper &json) { json.setEmptyObject(kKey); });
    row(true, "setEmptyObject(int) is called for %1.", "kDoc", [](JsonWrapper &json) { json.setEmptyObject(0); });
}

void tst_JsonWrapper::raise()
{
    QFETCH(bool, wantsArray);
    QFETCH(Step, step);
    QFETCH(QString, message);
    QFETCH(QString, onDoc);
    const char *wrong = wantsArray ? "{\"a\":1}" : "[1]";
    QCOMPARE(raisedBy(step, doc(wrong)), message.arg(onDoc));
    QCOMPARE(raisedBy(step, wantsArray ? object(wrong) : array(wrong)),
             message.arg(wantsArray ? QStringLiteral("kObject") : QStringLiteral("kArray")));
    QCOMPARE(raisedBy(step, value(wrong)), message.arg(QStringLiteral("kValue")));
    QCOMPARE(raisedBy(step, value("1")), message.arg(QStringLiteral("kValue")));
    QCOMPARE(raisedBy(step, JsonWrapper()), message.arg(QStringLiteral("kMax")));
}

void tst_JsonWrapper::raiseOneByOne_data()
{
    QTest::addColumn<JsonWrapper>("json");
    QTest::addColumn<Step>("step");
    const auto row = [](const JsonWrapper &json, const char *message, const Step &step) {
        QTest::newRow(message) << json << step;
    };
    const Step first = [](JsonWrapper &json) { json[0]; };
    row(doc("{}"), "[index] is applied for mDoc which is not Array.", first);
    row(value("1"), "[index] is applied for kValue.", first);
    row(JsonWrapper(), "[index] is applied for kMax.", first);
    row(object("{}"), "mObject doesn't have key: a", [](JsonWrapper &json) { json[kKey]; });
    row(array("[]"), "toValue() is called for kArray.", [](JsonWrapper &json) { json.toValue(); });
    const Step toObject = [](JsonWrapper &json) { json.toObject(); };
    row(doc("[]"), "toObject(): mDoc which is not Object.", toObject);
    row(array("[]"), "toObject(): applied for kArray.", toObject);
    const Step keys = [](JsonWrapper &json) { json.keys(); };
    row(doc("[]"), "keys() is called for mDoc which is not Object.", keys);
    row(array("[]"), "keys() is called for kArray", keys);
    row(value("[]"), "keys() is called for kValue.", keys);
    const Step assign = [](JsonWrapper &json) { json = QJsonValue(1); };
    row(doc("[]"), "= is applied for kDoc.", assign);
    row(JsonWrapper(), "= is applied for kMax.", assign);
    row(doc("[1]"), "index is out of range: 1", [](JsonWrapper &json) { json.set(1, 0); });
    row(value("[1]"), "index is out of range: 2", [](JsonWrapper &json) { json.insert(2, 0); });
    row(array("[1]"), "index is out of range: -1", [](JsonWrapper &json) { json.insert(-1, 0); });
}

void tst_JsonWrapper::raiseOneByOne()
{
    QFETCH(JsonWrapper, json);
    QFETCH(Step, step);
    QCOMPARE(raisedBy(step, json), QString::fromLatin1(QTest::currentDataTag()));
}

void tst_JsonWrapper::write_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<Step>("step");
    QTest::addColumn<QString>("after");
    const auto row = [](const char *name, const char *before, const char *after, const Step &step) {
        QTest::newRow(name) << QByteArray(before) << step << QString::fromLatin1(after);
    };
    row("replace entry", "{\"a\":1,\"b\":2}", "{\"a\":true,\"b\":2}", [](JsonWrapper &json) { json.set(kKey, true); });
    row("new entry", "{\"b\":2}", "{\"a\":1.5,\"b\":2}", [](JsonWrapper &json) { json.set(kKey, 1.5); });
    row("replace element", "[1,2]", "[1,\"a\"]", [](JsonWrapper &json) { json.set(1, kKey); });
    row("insert before", "[1,2]", "[1,9,2]", [](JsonWrapper &json) { json.insert(1, 9); });
    row("insert at the end", "[1,2]", "[1,2,9]", [](JsonWrapper &json) { json.insert(2, 9); });
    row("empty containers by key", "{}", "{\"a\":[],\"b\":{}}",
        [](JsonWrapper &json) { json.setEmptyArray(kKey).setEmptyObject(QStringLiteral("b")); });
    row("empty containers by index", "[1,2]", "[[],{}]",
        [](JsonWrapper &json) { json.setEmptyArray(0).setEmptyObject(1); });
}

void tst_JsonWrapper::write()
{
    QFETCH(QByteArray, before);
    QFETCH(Step, step);
    const bool isArray = before.startsWith('[');
    for (JsonWrapper json : { doc(before.constData()), isArray ? array(before.constData()) : object(before.constData()),
                              value(before.constData()) }) {
        const JsonWrapper::Kind kind = json.kind();
        step(json);
        QTEST(json.toJson(false), "after");
        QCOMPARE(json.kind(), kind);
    }
}

void tst_JsonWrapper::writeEveryType()
{
    JsonWrapper byKey = object("{}");
    JsonWrapper byIndex = array("[0,0,0,0,0,0,0]");
    int index = 0;
    const auto write = [&](const auto &value) {
        byKey.set(QString::number(index), value);
        byIndex.set(index, value);
        ++index;
    };
    write(true);
    write(0.5);
    write(7);
    write(QStringLiteral("text"));
    write(QJsonArray{ 1 });
    write(QJsonObject{ { kKey, 1 } });
    write(QJsonValue());
    QCOMPARE(byIndex.toJson(false), QStringLiteral("[true,0.5,7,\"text\",[1],{\"a\":1},null]"));
    for (int i = 0; i < index; ++i)
        QCOMPARE(byKey[i].toValue(), byIndex[i].toValue());
}

void tst_JsonWrapper::copiesAreIndependent()
{
    const JsonWrapper whole = doc("{\"a\":{\"b\":1}}");
    JsonWrapper part = whole[kKey];
    const JsonWrapper copy = part;
    part.set(QStringLiteral("b"), 2);
    QCOMPARE(part.toJson(false), QStringLiteral("{\"b\":2}"));
    QCOMPARE(copy.toJson(false), QStringLiteral("{\"b\":1}"));
    QCOMPARE(whole.toJson(false), QStringLiteral("{\"a\":{\"b\":1}}"));
}

void tst_JsonWrapper::writeText_data()
{
    QTest::addColumn<JsonWrapper>("json");
    QTest::addColumn<QString>("compact");
    QTest::addColumn<QString>("indented");
    for (const auto &json : { doc("[1]"), array("[1]"), value("[1]") })
        QTest::addRow("array, kind %d", int(json.kind()))
            << json << QStringLiteral("[1]") << QStringLiteral("[\n    1\n]\n");
    QTest::newRow("null value") << value("null") << QStringLiteral("null") << QStringLiteral("null");
    QTest::newRow("text value") << value("\"x\\n\"") << QStringLiteral("\"x\\n\"")
                                << QStringLiteral("\n    \"x\\n\"\n]");
    QTest::newRow("nothing") << JsonWrapper() << QString() << QString();
}

void tst_JsonWrapper::writeText()
{
    QFETCH(JsonWrapper, json);
    QTEST(json.toJson(false), "compact");
    QTEST(json.toJson(true), "indented");
}

void tst_JsonWrapper::jsonString_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *text, const QVariant &value) {
        QTest::newRow(text) << value << QString::fromUtf8(text);
    };
    row("true", true);
    row("-3", -3);
    row("18446744073709551615", std::numeric_limits<quint64>::max());
    row("0.1", 0.1);
    row("1e+06", 1e6);
    row("\"\"", QString());
    row("\"q\\\" b\\\\ n\\n c\\u0001 \u3042/\"", QStringLiteral("q\" b\\ n\n c\u0001 \u3042/"));
    row("[  ]", QVariantList());
    row("[ 1, [ \"a\" ] ]", QVariantList{ 1, QVariantList{ kKey } });
    row("{  }", QVariantHash());
    row("{ \"tutorialItemId\": 5 }", QVariantHash{ { QStringLiteral("tutorialItemId"), 5 } });
    row("{ \"\\\"\": [ false ] }", QVariantHash{ { QStringLiteral("\""), QVariantList{ false } } });
    row("?", QVariant());
    QTest::newRow("map") << QVariant(QVariantMap()) << QStringLiteral("?");
    QTest::newRow("unknown inside") << QVariant(QVariantList{ QVariant() }) << QStringLiteral("[ ? ]");
}

void tst_JsonWrapper::jsonString()
{
    QFETCH(QVariant, value);
    QFETCH(QString, text);
    if (text.contains(QLatin1Char('?')))
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Unknown type")));
    QCOMPARE(JsonWrapper::getJsonString(value), text);
}

QTEST_APPLESS_MAIN(tst_JsonWrapper)
#include "tst_JsonWrapper.moc"
