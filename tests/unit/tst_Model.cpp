#include "model/TreeItem.h"
#include "model/TutorialItemData.h"
#include "support/DocumentFakes.h"
#include "support/WarningGuard.h"

#include <QtTest>

namespace
{
const char *const kDefaultJson = "{\"id\":-1,\"name\":\"\",\"x\":-9999,\"y\":-9999,\"windowKey\":\"\","
                                 "\"condition\":\"\",\"hint\":\"\",\"hint2\":\"\",\"icon\":\"click\",\"jump\":-1,"
                                 "\"jumpNo\":-1,\"command\":\"\",\"showArrow\":true,\"prohibited\":false}";

JsonWrapper json(const char *text)
{
    return JsonWrapper(QString::fromUtf8(text));
}
} // namespace

/// The items of a document: their records, their names and their tree.
class tst_Model : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { mWarnings.begin(); }
    void cleanup()
    {
        qDeleteAll(mRecords);
        mRecords.clear();
        mWarnings.end();
    }

    void readsRecords();
    void setsFields();
    void makesValidNames();
    void makesNewIds();

private:
    NameData *make(int id, const QString &name = QString())
    {
        mRecords.append(new NameData(id, name));
        return mRecords.last();
    }

    QList<NameData *> mRecords;
    WarningGuard mWarnings;
};

void tst_Model::readsRecords()
{
    FakeContext context;
    context.mTranslations = { { QStringLiteral("#3"), QStringLiteral("three") } };
    // The record's text, and what makes it differ from an empty record.
    const char *const rows[][2] = {
        { "{\"id\":3,\"name\":\"n\",\"x\":1,\"y\":-2,\"windowKey\":\"w\",\"condition\":\"c\",\"hint\":\"h\",\"hint2\":"
          "\"-\",\"icon\":\"eye\",\"jump\":4,\"jumpNo\":5,\"command\":\"d\",\"showArrow\":false,\"prohibited\":true}",
          "id=3 name=n x=1 y=-2 windowKey=w condition=c hint=h hint2=three icon=eye jump=4 jumpNo=5 command=d "
          "showArrow=false prohibited=true" },
        { "{\"id\":3,\"folder\":true,\"x\":5,\"hint\":\"h\",\"followWindow\":\"w\",\"prohibited\":true}",
          "id=3 prohibited=true" },
        { "{\"followWindow\":\"w\"}", "id=0 hint2=#0 windowKey=w" },
        { "{\"id\":\"3\",\"name\":5,\"x\":\"1\",\"y\":1.5,\"icon\":true,\"showArrow\":\"true\",\"jump\":null}",
          "id=0 hint2=#0 x=0 y=0 icon= showArrow=false jump=0" },
    };
    for (const auto &row : rows) {
        const std::unique_ptr<TutorialItemData> record(TutorialItemData::fromJson(json(row[0])));
        TutorialItemData expected;
        for (const QString &change : QString::fromLatin1(row[1]).split(QLatin1Char(' ')))
            expected.setValue(change.section(QLatin1Char('='), 0, 0), change.section(QLatin1Char('='), 1));
        QVERIFY(record);
        QCOMPARE(record->toJsonText(QString()), expected.toJsonText(QString()));
    }
}

void tst_Model::setsFields()
{
    FakeHistory history;
    TutorialItemData record;
    for (const char *name : { "name", "windowKey", "condition", "icon", "hint", "hint2", "command", "x", "y", "jump",
                              "jumpNo", "showArrow", "prohibited" }) {
        const QString property = QLatin1String(name);
        const QVariant before = record.getValue(property);
        const QVariant number = before.type() == QVariant::Bool ? QVariant(!before.toBool()) : QVariant(7);
        const QVariant value = before.type() == QVariant::String ? QString::fromUtf8("\"次\"\n%1") : number;

        // In a transaction a change is recorded alone.
        history.mChanges.clear();
        history.mInTransaction = true;
        record.setValue(property, before);
        QVERIFY(history.mChanges.isEmpty());
        record.setValue(property, value);
        QCOMPARE(history.mChanges, QStringList{ property });
        QCOMPARE(record.getValue(property), before);

        history.mInTransaction = false;
        record.setValue(property, value);
        QCOMPARE(record.getValue(property).toString(), value.toString());
        QCOMPARE(json(record.toJsonText(QString()).toUtf8()).keys().size(), 14);
        record.setValue(property, before);
        QCOMPARE(record.toJsonText(QString()), QLatin1String(kDefaultJson));
    }
}

void tst_Model::makesValidNames()
{
    // The name that is wanted, others that are there, and what comes of it.
    const char *const rows[][2] = {
        { "abc,abd,ABC,", "abc" },
        { "item007,item007,item012", "item013" },
        { "abc(2),abc(2),abc(10)", "abc(11)" },
        { "abc(x),abc(x)", "abc(x)1" },
    };
    for (const auto &row : rows) {
        QStringList names = QString::fromUtf8(row[0]).split(QLatin1Char(','));
        const QString candidate = names.takeFirst();
        TreeDataTemplate<NameData> data;
        for (const QString &name : qAsConst(names))
            data.mDataList.append(make(data.mDataList.size(), name));
        QCOMPARE(data.getValidName(candidate), QString::fromUtf8(row[1]));
    }
}

void tst_Model::makesNewIds()
{
    TreeDataTemplate<NameData> data;
    QCOMPARE(data.getNewId(), 1);
    for (const int id : { 2, 99999998, 99999999, 1, 100000000, -7 })
        data.mDataList.append(make(id));
    QCOMPARE(data.getIdList(), (QList<int>{ 2, 99999998, 1, -7 }));
    QCOMPARE(data.getNewId(), 3);
}

QTEST_GUILESS_MAIN(tst_Model)
#include "tst_Model.moc"
