#include "tool/JsonWrapper.h"
#include "tool/JsonWrapperException.h"

#include <QtTest>

#include <functional>

namespace
{
const QString kKey = QStringLiteral("a");

/// The same data in each kind of wrapper that can hold it, and last in none.
QVector<JsonWrapper> eachKind(const char *text)
{
    const QJsonDocument doc = QJsonDocument::fromJson(text);
    const QJsonValue value = doc.isArray() ? QJsonValue(doc.array()) : QJsonValue(doc.object());
    const JsonWrapper held = doc.isArray() ? JsonWrapper(doc.array()) : JsonWrapper(doc.object());
    return { JsonWrapper(doc), held, JsonWrapper(value), JsonWrapper() };
}
} // namespace

class tst_JsonWrapper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reads();
    void raises();
    void writesText();
};

void tst_JsonWrapper::reads()
{
    QCOMPARE(JsonWrapper(QStringLiteral("123")).toInt(), 123);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Json parse error")));
    const JsonWrapper bad(QStringLiteral("[1"));
    QVERIFY(bad.isNull() && !bad.isArray() && !bad.isObject());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("jsonStr is empty.")));
    QVERIFY(JsonWrapper(QString()).isUndefined());

    for (const JsonWrapper &json : eachKind("[10,[20]]").mid(0, 3)) {
        QCOMPARE(json[0].toInt(), 10);
        QVERIFY(json[2].isUndefined() && json[-1].isUndefined());
        QCOMPARE(json.toJson(true), QStringLiteral("[\n    10,\n    [\n        20\n    ]\n]\n"));
    }
    for (const JsonWrapper &json : eachKind("{\"a\":2.5,\"b\":null}").mid(0, 3)) {
        QCOMPARE(json[kKey].toDouble(), 2.5);
        QVERIFY(json.contains(QStringLiteral("b")) && json[QStringLiteral("b")].isNull());
    }
}

void tst_JsonWrapper::raises()
{
    struct Row
    {
        const char *json;
        std::function<void(JsonWrapper &)> step;
        // How the message begins, and how it ends for a text, an array or object, a value and nothing.
        const char *said;
    };
    const Row rows[] = {
        { "[1]", [](JsonWrapper &json) { json[kKey]; },
          "[a] is applied for |mDoc which is not Object.|kArray.|kValue.|kMax." },
        // A missing key reads as null, but in an object of its own.
        { "{}", [](JsonWrapper &json) { QVERIFY(json[kKey].isNull()); },
          "|-|mObject doesn't have key: a|-|[a] is applied for kMax." },
        { "{}", [](JsonWrapper &json) { json[0]; }, "[index] is applied for |mDoc which is not Array.|-|-|kMax." },
        { "[1]", [](JsonWrapper &json) { json.toObject(); },
          "toObject(): |mDoc which is not Object.|applied for kArray.|applied for kValue.|applied for kMax." },
        { "{}", [](JsonWrapper &json) { json.toValue(); }, "toValue() is called for |kDoc.|kObject.|-|kMax." },
        { "{}", [](JsonWrapper &json) { json.length(); },
          "length() is called for |mDoc which is not Array.|kObject.|kValue.|kMax." },
        { "[1]", [](JsonWrapper &json) { json.keys(); },
          "keys() is called for |mDoc which is not Object.|kArray|kValue.|kMax." },
    };
    for (const Row &row : rows) {
        QStringList said{ QString::fromUtf8(row.said).section(QLatin1Char('|'), 0, 0) };
        for (JsonWrapper &json : eachKind(row.json)) {
            QString message = QStringLiteral("-");
            try {
                row.step(json);
            } catch (const JsonWrapperException &exception) {
                message = exception.message();
            }
            said.append(message.remove(said.first()));
        }
        QCOMPARE(said.join(QLatin1Char('|')), QString::fromUtf8(row.said));
    }
}

void tst_JsonWrapper::writesText()
{
    const QVariantList list = { std::numeric_limits<quint64>::max(), 0.1, QVariantList() };
    QCOMPARE(JsonWrapper::getJsonString(QVariantHash{ { QStringLiteral("\""), list } }),
             QStringLiteral("{ \"\\\"\": [ 18446744073709551615, 0.1, [  ] ] }"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Unknown type")));
    QCOMPARE(JsonWrapper::getJsonString(QVariant()), QStringLiteral("?"));
}

QTEST_APPLESS_MAIN(tst_JsonWrapper)
#include "tst_JsonWrapper.moc"
