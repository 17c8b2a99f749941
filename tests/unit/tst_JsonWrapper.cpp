#include "tool/JsonWrapper.h"
#include "tool/JsonWrapperException.h"

#include <QtTest>

#include <functional>

using Step = std::function<void(JsonWrapper &)>;

namespace
{
const QString kKey = QStringLiteral("a");

/// The same data in each kind of wrapper.
QVector<JsonWrapper> eachKind(const QString &json)
{
    const JsonWrapper doc(json);
    const JsonWrapper value = JsonWrapper(QStringLiteral("[%1]").arg(json))[0];
    return { doc, doc.isArray() ? JsonWrapper(doc.toArray()) : JsonWrapper(doc.toObject()), value };
}
} // namespace

class tst_JsonWrapper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stepInto();
    void wrongUseRaises();
    void write();
    void jsonString();
};

void tst_JsonWrapper::stepInto()
{
    for (const JsonWrapper &json : eachKind(QStringLiteral("[10,[20]]"))) {
        QCOMPARE(json[0].toInt(), 10);
        QCOMPARE(json[1].toJson(false), QStringLiteral("[20]"));
        QVERIFY(json[2].isUndefined() && json[-1].isUndefined());
        QCOMPARE(json.toJson(true), QStringLiteral("[\n    10,\n    [\n        20\n    ]\n]\n"));
    }
    for (const JsonWrapper &json : eachKind(QStringLiteral("{\"a\":2.5,\"b\":null}"))) {
        QCOMPARE(json[kKey].toDouble(), 2.5);
        QVERIFY(json.contains(QStringLiteral("b")) && json[QStringLiteral("b")].isNull());
    }
}

void tst_JsonWrapper::wrongUseRaises()
{
    const QPair<const char *, Step> steps[] = {
        { "[1]", [](JsonWrapper &json) { json[kKey]; } },
        { "{}", [](JsonWrapper &json) { json.toArray(); } },
        { "[1]", [](JsonWrapper &json) { json.set(kKey, 1); } },
        { "{}", [](JsonWrapper &json) { json.set(0, 1); } },
        { "[1]", [](JsonWrapper &json) { json.set(1, 0); } },
        { "[1]", [](JsonWrapper &json) { json.insert(2, 0); } },
        { "[1]", [](JsonWrapper &json) { json.insert(-1, 0); } },
    };
    for (const auto &step : steps) {
        for (JsonWrapper &wrapper : eachKind(QLatin1String(step.first)))
            QVERIFY_EXCEPTION_THROWN(step.second(wrapper), JsonWrapperException);
    }
}

void tst_JsonWrapper::write()
{
    for (JsonWrapper &json : eachKind(QStringLiteral("[1,2]"))) {
        json.set(1, kKey);
        json.insert(1, 9);
        json.insert(3, 8);
        json.setEmptyArray(0);
        QCOMPARE(json.toJson(false), QStringLiteral("[[],9,\"a\",8]"));
    }
    for (JsonWrapper &json : eachKind(QStringLiteral("{\"a\":1,\"b\":2}"))) {
        json.set(kKey, true);
        json.setEmptyArray(QStringLiteral("c"));
        const JsonWrapper copy = json;
        json.set(kKey, 3);
        QCOMPARE(json.toJson(false), QStringLiteral("{\"a\":3,\"b\":2,\"c\":[]}"));
        QCOMPARE(copy.toJson(false), QStringLiteral("{\"a\":true,\"b\":2,\"c\":[]}"));
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
}

QTEST_APPLESS_MAIN(tst_JsonWrapper)
#include "tst_JsonWrapper.moc"
