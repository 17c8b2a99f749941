#include "model/PropertyHash.h"
#include "model/TutorialItemData.h"
#include "support/DocumentFakes.h"
#include "support/WarningGuard.h"

#include <QtTest>

namespace
{
JsonWrapper json(const char *text)
{
    return JsonWrapper(QString::fromUtf8(text));
}

const QStringList kProperties = { QStringLiteral("id"),        QStringLiteral("name"),      QStringLiteral("x"),
                                  QStringLiteral("y"),         QStringLiteral("windowKey"), QStringLiteral("condition"),
                                  QStringLiteral("hint"),      QStringLiteral("hint2"),     QStringLiteral("icon"),
                                  QStringLiteral("jump"),      QStringLiteral("jumpNo"),    QStringLiteral("command"),
                                  QStringLiteral("showArrow"), QStringLiteral("prohibited") };

const char *const kDefaultJson = "{\"id\":-1,\"name\":\"\",\"x\":-9999,\"y\":-9999,\"windowKey\":\"\","
                                 "\"condition\":\"\",\"hint\":\"\",\"hint2\":\"\",\"icon\":\"click\",\"jump\":-1,"
                                 "\"jumpNo\":-1,\"command\":\"\",\"showArrow\":true,\"prohibited\":false}";
} // namespace

class tst_ItemData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { mWarnings.begin(); }
    void cleanup() { mWarnings.end(); }

    void readsRecords_data();
    void readsRecords();
    void readsNoRecordFrom_data();
    void readsNoRecordFrom();
    void addressesFieldsByName_data();
    void addressesFieldsByName();
    void refusesUnknownNames();
    void recordsChangesInATransaction_data();
    void recordsChangesInATransaction();
    void writesJson();
    void copiesFields();
    void keepsTheOrderOfProperties();
    void readsTypedProperties();
    void namesRecords();
    void givesTheLastContextAndHistory();

private:
    WarningGuard mWarnings;
};

void tst_ItemData::readsRecords_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QVariantMap>("differing");

    const auto row = [](const char *tag, const char *text, const QVariantMap &differing) {
        QTest::newRow(tag) << QByteArray(text) << differing;
    };
    const auto text = [](const char *value) { return QString::fromUtf8(value); };
    const QVariantMap none = { { text("id"), 0 }, { text("hint2"), text("#0") } };
    row("nothing told", "{}", none);
    row("all",
        "{\"id\":3,\"name\":\"n\",\"x\":1,\"y\":-2,\"windowKey\":\"w\",\"condition\":\"c\",\"hint\":\"h\","
        "\"icon\":\"eye\",\"jump\":4,\"jumpNo\":5,\"command\":\"d\",\"showArrow\":false,\"prohibited\":true}",
        { { text("id"), 3 },
          { text("name"), text("n") },
          { text("x"), 1 },
          { text("y"), -2 },
          { text("windowKey"), text("w") },
          { text("condition"), text("c") },
          { text("hint"), text("h") },
          { text("hint2"), text("second") },
          { text("icon"), text("eye") },
          { text("jump"), 4 },
          { text("jumpNo"), 5 },
          { text("command"), text("d") },
          { text("showArrow"), false },
          { text("prohibited"), true } });
    row("folder",
        "{\"id\":3,\"name\":\"n\",\"folder\":true,\"x\":5,\"hint\":\"h\",\"icon\":\"eye\",\"followWindow\":\"w\","
        "\"showArrow\":false,\"prohibited\":true}",
        { { text("id"), 3 }, { text("name"), text("n") }, { text("prohibited"), true } });
    row("older name of the key", "{\"followWindow\":\"w\"}",
        { { text("id"), 0 }, { text("hint2"), text("#0") }, { text("windowKey"), text("w") } });
    row("newer name of the key wins", "{\"followWindow\":\"w\",\"windowKey\":\"\"}", none);
    row("second hint is not read", "{\"hint2\":\"x\"}", none);
    row("translation is empty", "{\"id\":4}", { { text("id"), 4 }, { text("hint2"), text("#4") } });
    row("wrong types",
        "{\"id\":\"3\",\"name\":5,\"x\":\"1\",\"y\":1.5,\"icon\":true,\"showArrow\":\"true\",\"jump\":null}",
        { { text("id"), 0 },
          { text("hint2"), text("#0") },
          { text("x"), 0 },
          { text("y"), 0 },
          { text("icon"), text("") },
          { text("showArrow"), false },
          { text("jump"), 0 } });
}

void tst_ItemData::readsRecords()
{
    QFETCH(QByteArray, text);
    QFETCH(QVariantMap, differing);
    FakeContext context;
    context.mTranslations = { { QStringLiteral("#3"), QStringLiteral("second") }, { QStringLiteral("#4"), QString() } };
    const std::unique_ptr<TutorialItemData> record(TutorialItemData::fromJson(json(text.constData())));
    QVERIFY(record);
    const TutorialItemData defaults;
    for (const QString &property : kProperties) {
        const QVariant expected = differing.value(property, defaults.getValue(property));
        QVERIFY2(record->getValue(property) == expected, qPrintable(property));
    }
}

void tst_ItemData::readsNoRecordFrom_data()
{
    QTest::addColumn<QByteArray>("text");
    for (const char *text : { "12", "\"a\"", "null", "true", "[{}]" })
        QTest::newRow(text) << QByteArray(text);
}

void tst_ItemData::readsNoRecordFrom()
{
    QFETCH(QByteArray, text);
    mWarnings.expect(QStringLiteral("TutorialItemData::fromJson"));
    QCOMPARE(TutorialItemData::fromJson(json(text.constData())), nullptr);
}

void tst_ItemData::addressesFieldsByName_data()
{
    QTest::addColumn<QVariant>("initial");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVariant>("stored");

    const QVariant empty = QString();
    const QVariant text = QStringLiteral("次");
    QTest::newRow("id") << QVariant(-1) << QVariant(5) << QVariant(5);
    for (const char *property : { "name", "windowKey", "condition", "hint", "hint2", "command" })
        QTest::newRow(property) << empty << text << text;
    QTest::newRow("icon") << QVariant(QStringLiteral("click")) << text << text;
    QTest::newRow("x") << QVariant(-9999) << QVariant(QStringLiteral("no number")) << QVariant(0);
    QTest::newRow("y") << QVariant(-9999) << QVariant(QStringLiteral("-12")) << QVariant(-12);
    QTest::newRow("jump") << QVariant(-1) << QVariant(3) << QVariant(3);
    QTest::newRow("jumpNo") << QVariant(-1) << QVariant(3) << QVariant(3);
    QTest::newRow("showArrow") << QVariant(true) << QVariant(0) << QVariant(false);
    QTest::newRow("prohibited") << QVariant(false) << QVariant(true) << QVariant(true);
}

void tst_ItemData::addressesFieldsByName()
{
    QFETCH(QVariant, initial);
    QFETCH(QVariant, value);
    QFETCH(QVariant, stored);
    const QString property = QString::fromLatin1(QTest::currentDataTag());
    TutorialItemData record;
    QCOMPARE(record.getValue(property), initial);
    QCOMPARE(record.getValue(property).userType(), initial.userType());
    record.setValue(property, value);
    QCOMPARE(record.getValue(property), stored);

    // Past the history every field but the id can be written.
    TutorialItemData other;
    QVariant former;
    const bool writable = property != QLatin1String("id");
    QCOMPARE(other.writeField(property, value, former), writable);
    if (writable)
        QCOMPARE(former, initial);
    for (const QString &each : kProperties)
        QCOMPARE(other.getValue(each), each == property && writable ? stored : TutorialItemData().getValue(each));
}

void tst_ItemData::refusesUnknownNames()
{
    TutorialItemData record;
    for (const char *name : { "folder", "X", "", "children" }) {
        const QString property = QString::fromLatin1(name);
        mWarnings.expect(QLatin1String("TutorialItemData::getValue"));
        QVERIFY(!record.getValue(property).isValid());
        mWarnings.expect(QLatin1String("invalid propertyName \"") + property);
        record.setValue(property, 1);
        QVariant former;
        QVERIFY(!record.writeField(property, 1, former));
    }
    QCOMPARE(record.toJsonText(QString()), QLatin1String(kDefaultJson));
}

void tst_ItemData::recordsChangesInATransaction_data()
{
    QTest::addColumn<QVariant>("value");

    for (const char *property : { "name", "windowKey", "condition", "icon", "hint", "hint2", "command" })
        QTest::newRow(property) << QVariant(QStringLiteral("a"));
    for (const char *property : { "x", "y", "jump", "jumpNo" })
        QTest::newRow(property) << QVariant(7);
    QTest::newRow("showArrow") << QVariant(false);
    QTest::newRow("prohibited") << QVariant(true);
}

void tst_ItemData::recordsChangesInATransaction()
{
    QFETCH(QVariant, value);
    const QString property = QString::fromLatin1(QTest::currentDataTag());
    FakeHistory history;
    TutorialItemData record;
    record.mId = 5;
    const QVariant before = record.getValue(property);

    history.mInTransaction = true;
    record.setValue(property, before);
    QVERIFY(history.mChanges.isEmpty());
    record.setValue(property, value);
    QCOMPARE(record.getValue(property), before);
    QCOMPARE(history.mChanges.size(), 1);
    const FakeHistory::Change &change = history.mChanges.first();
    QCOMPARE(change.itemId, 5);
    QCOMPARE(change.propertyName, property);
    QCOMPARE(change.value, value);
    QCOMPARE(change.linkInfo, QStringLiteral("{ \"tutorialItemId\": 5 }"));
    record.setId(6);
    QCOMPARE(record.mId, 6);

    history.mInTransaction = false;
    record.setValue(property, value);
    QCOMPARE(record.getValue(property), value);
    QCOMPARE(history.mChanges.size(), 1);
}

void tst_ItemData::writesJson()
{
    TutorialItemData record;
    QCOMPARE(record.toJsonText(QString()), QLatin1String(kDefaultJson));
    record.mName = QString::fromUtf8("\"次\"\n%1");
    record.mHint2 = QStringLiteral("h2");
    const QString text = record.toJsonText(QStringLiteral("\"folder\":true"));
    QVERIFY(text.startsWith(QString::fromUtf8("{\"id\":-1,\"name\":\"\\\"次\\\"\\n%1\",\"x\":-9999,")));
    QVERIFY(text.contains(QLatin1String(",\"hint2\":\"h2\",")));
    QVERIFY(text.endsWith(QLatin1String("\"prohibited\":false,\"folder\":true}")));
    QCOMPARE(JsonWrapper(text).keys().size(), 15);
}

void tst_ItemData::copiesFields()
{
    QObject parent;
    TutorialItemData record(&parent);
    for (const QString &property : kProperties) {
        const QVariant value = record.getValue(property);
        if (value.userType() == QMetaType::Bool)
            record.setValue(property, !value.toBool());
        else
            record.setValue(property, value.userType() == QMetaType::Int ? QVariant(3) : QVariant(property));
    }
    const TutorialItemData copy(record);
    QVERIFY(!copy.parent());
    QCOMPARE(copy.toJsonText(QString()), record.toJsonText(QString()));
}

void tst_ItemData::keepsTheOrderOfProperties()
{
    PropertyHash hash;
    const QString a = QStringLiteral("a");
    const QString b = QStringLiteral("b");
    hash.insert(b, 1);
    hash.insert(a, 2);
    hash.insert(b, 3);
    QCOMPARE(hash.keyList(), (QStringList{ b, a, b }));
    QCOMPARE(hash.value(b).toInt(), 3);
    hash.remove(b);
    QCOMPARE(hash.keyList(), (QStringList{ b, a }));
    QVERIFY(!hash.contains(b) && hash.contains(a));
    hash.remove(QStringLiteral("c"));
    QCOMPARE(hash.keyList(), (QStringList{ b, a }));
    const PropertyHash copy = hash;
    QCOMPARE(copy.keyList(), hash.keyList());
}

void tst_ItemData::readsTypedProperties()
{
    PropertyHash hash;
    const QString key = QStringLiteral("a");
    QVERIFY(hash.getBool(key, true));
    QCOMPARE(hash.getInt(key, -9), -9);
    QCOMPARE(hash.getDouble(key, 1.5), 1.5);
    QCOMPARE(hash.getString(key, QStringLiteral("none")), QStringLiteral("none"));
    hash.insert(key, QStringLiteral("12"));
    QVERIFY(hash.getBool(key, false));
    QCOMPARE(hash.getInt(key, -9), 12);
    QCOMPARE(hash.getDouble(key, 1.5), 12.0);
    hash.insert(key, 0);
    QVERIFY(!hash.getBool(key, true));
    QCOMPARE(hash.getString(key, QStringLiteral("none")), QStringLiteral("0"));
}

void tst_ItemData::namesRecords()
{
    NameData record;
    QCOMPARE(record.mId, -1);
    QCOMPARE(record.mName, QString());
    // Through the base class an item's own setter is reached.
    FakeHistory history;
    history.mInTransaction = true;
    TutorialItemData item;
    NameData &base = item;
    base.setName(QStringLiteral("a"));
    QCOMPARE(history.mChanges.size(), 1);
}

void tst_ItemData::givesTheLastContextAndHistory()
{
    QVERIFY(!DocumentContext::instance() && !EditHistory::instance());
    auto first = std::make_unique<FakeContext>();
    auto second = std::make_unique<FakeContext>();
    QCOMPARE(DocumentContext::instance(), second.get());
    first.reset();
    QCOMPARE(DocumentContext::instance(), second.get());
    second.reset();
    QVERIFY(!DocumentContext::instance());
    {
        FakeHistory history;
        QCOMPARE(EditHistory::instance(), &history);
    }
    QVERIFY(!EditHistory::instance());
}

QTEST_GUILESS_MAIN(tst_ItemData)
#include "tst_ItemData.moc"
