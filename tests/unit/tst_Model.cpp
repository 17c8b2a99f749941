#include "model/PropertyHash.h"
#include "model/TreeItem.h"
#include "model/TutorialItemData.h"
#include "support/DocumentFakes.h"
#include "support/WarningGuard.h"

#include <QRandomGenerator>
#include <QtTest>

namespace
{
using Item = TreeItem<TutorialItemData>;
using Data = TreeDataTemplate<TutorialItemData>;

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

    void readsRecords_data();
    void readsRecords();
    void setsFields_data();
    void setsFields();
    void refusesUnknownNames();
    void makesValidNames_data();
    void makesValidNames();
    void makesNewIds();
    void findsRecordsWhileTheListChanges();
    void findsNodesWhileTheTreeChanges();
    void sharesCopiesOfNodes();
    void keepsWhatWasReadBeforeAFault();
    void keepsTheOrderOfProperties();

private:
    NameData *make(int id, const QString &name = QString())
    {
        mRecords.append(new NameData(id, name));
        return mRecords.last();
    }

    QList<NameData *> mRecords;
    WarningGuard mWarnings;
};

void tst_Model::readsRecords_data()
{
    QTest::addColumn<QByteArray>("changes");

    const auto row = [](const char *text, const char *changes) { QTest::newRow(text) << QByteArray(changes); };
    row("{}", "id=0 hint2=#0");
    row("{\"id\":3,\"name\":\"n\",\"x\":1,\"y\":-2,\"windowKey\":\"w\",\"condition\":\"c\",\"hint\":\"h\",\"hint2\":\"-"
        "\","
        "\"icon\":\"eye\",\"jump\":4,\"jumpNo\":5,\"command\":\"d\",\"showArrow\":false,\"prohibited\":true}",
        "id=3 name=n x=1 y=-2 windowKey=w condition=c hint=h hint2=three icon=eye jump=4 jumpNo=5 command=d "
        "showArrow=false prohibited=true");
    row("{\"id\":3,\"folder\":true,\"x\":5,\"hint\":\"h\",\"followWindow\":\"w\",\"prohibited\":true}",
        "id=3 prohibited=true");
    row("{\"followWindow\":\"w\"}", "id=0 hint2=#0 windowKey=w");
    row("{\"followWindow\":\"w\",\"windowKey\":\"\"}", "id=0 hint2=#0");
    row("{\"id\":4}", "id=4 hint2=#4");
    row("{\"id\":\"3\",\"name\":5,\"x\":\"1\",\"y\":1.5,\"icon\":true,\"showArrow\":\"true\",\"jump\":null}",
        "id=0 hint2=#0 x=0 y=0 icon= showArrow=false jump=0");
}

void tst_Model::readsRecords()
{
    QFETCH(QByteArray, changes);
    FakeContext context;
    context.mTranslations = { { QStringLiteral("#3"), QStringLiteral("three") }, { QStringLiteral("#4"), QString() } };
    const std::unique_ptr<TutorialItemData> record(TutorialItemData::fromJson(json(QTest::currentDataTag())));
    TutorialItemData expected;
    for (const QString &change : QString::fromLatin1(changes).split(QLatin1Char(' '))) {
        const QStringList parts = change.split(QLatin1Char('='));
        expected.setValue(parts.at(0), parts.at(1));
    }
    QVERIFY(record);
    QCOMPARE(record->toJsonText(QString()), expected.toJsonText(QString()));
    QCOMPARE(TutorialItemData(*record).toJsonText(QString()), expected.toJsonText(QString()));
}

void tst_Model::setsFields_data()
{
    QTest::addColumn<QVariant>("value");
    for (const char *property : { "name", "windowKey", "condition", "icon", "hint", "hint2", "command" })
        QTest::newRow(property) << QVariant(QString::fromUtf8("\"次\"\n%1"));
    for (const char *property : { "x", "y", "jump", "jumpNo" })
        QTest::newRow(property) << QVariant(7);
    QTest::newRow("showArrow") << QVariant(false);
    QTest::newRow("prohibited") << QVariant(true);
}

void tst_Model::setsFields()
{
    QFETCH(QVariant, value);
    const QString property = QString::fromLatin1(QTest::currentDataTag());
    FakeHistory history;
    TutorialItemData record;
    const QVariant before = record.getValue(property);

    // In a transaction a change is recorded alone.
    history.mInTransaction = true;
    record.setValue(property, before);
    QVERIFY(history.mChanges.isEmpty());
    record.setValue(property, value);
    QCOMPARE(record.toJsonText(QString()), QLatin1String(kDefaultJson));
    QCOMPARE(history.mChanges.size(), 1);
    QCOMPARE(history.mChanges.first().propertyName, property);
    QCOMPARE(history.mChanges.first().value, value);
    QCOMPARE(history.mChanges.first().linkInfo, QStringLiteral("{ \"tutorialItemId\": -1 }"));

    QVariant former;
    QVERIFY(record.writeField(property, value, former));
    QCOMPARE(former, before);
    QCOMPARE(record.getValue(property), value);
    QCOMPARE(json(record.toJsonText(QString()).toUtf8()).keys().size(), 14);
    history.mInTransaction = false;
    record.setValue(property, before);
    QCOMPARE(record.toJsonText(QString()), QLatin1String(kDefaultJson));
}

void tst_Model::refusesUnknownNames()
{
    TutorialItemData record;
    for (const char *name : { "folder", "X", "" }) {
        mWarnings.expect(QLatin1String("TutorialItemData::getValue"));
        QVERIFY(!record.getValue(QLatin1String(name)).isValid());
        mWarnings.expect(QLatin1String("invalid propertyName"));
        record.setValue(QLatin1String(name), 1);
    }
    QVariant former;
    QVERIFY(!record.writeField(QStringLiteral("id"), 1, former));
    QCOMPARE(record.toJsonText(QString()), QLatin1String(kDefaultJson));
}

void tst_Model::makesValidNames_data()
{
    QTest::addColumn<QString>("expected");

    // The name that is wanted, and others that are there.
    const auto row = [](const char *names, const char *expected) {
        QTest::newRow(names) << QString::fromUtf8(expected);
    };
    row("abc,abd,ABC,", "abc");
    row("abc,abc,abc1", "abc2");
    row("item007,item007,item012", "item013");
    row("item999,item999", "item1000");
    row("item7,item7,item007", "item8");
    row("item2147483647,item2147483647", "item2147483648");
    row("abc(2),abc(2),abc(10)", "abc(11)");
    row("abc(x),abc(x)", "abc(x)1");
    row("abc(),abc()", "abc()1");
    row("09,09,10", "11");
    row("(3),(3)", "(4)");
    row("次,次,次1", "次2");
    row("a1b,a1b", "a1b1");
}

void tst_Model::makesValidNames()
{
    QFETCH(QString, expected);
    QStringList names = QString::fromUtf8(QTest::currentDataTag()).split(QLatin1Char(','));
    const QString candidate = names.takeFirst();
    TreeDataTemplate<NameData> data;
    for (const QString &name : qAsConst(names))
        data.mDataList.append(make(data.mDataList.size(), name));
    QCOMPARE(data.getValidName(candidate), expected);
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

void tst_Model::findsRecordsWhileTheListChanges()
{
    // Others write to the list directly. After each change every look-up is the one that a search
    // from the front finds, also where ids stand twice.
    QRandomGenerator random(7);
    TreeDataTemplate<NameData> data;
    QList<NameData *> &list = data.mDataList;
    const int idCount = 12;
    for (int step = 0; step < 2000; ++step) {
        const int place = random.bounded(list.size() + 1);
        const int action = random.bounded(4);
        if (action < 2 || place == list.size())
            list.insert(place, make(random.bounded(idCount)));
        else if (action == 2)
            list.move(place, random.bounded(list.size()));
        else
            list.removeAt(place);
        for (int id = -1; id <= idCount; ++id) {
            const auto found =
                std::find_if(list.cbegin(), list.cend(), [id](const NameData *each) { return each->mId == id; });
            QCOMPARE(data.getDataIndex(id), found == list.cend() ? -1 : int(found - list.cbegin()));
            QCOMPARE(data.getData(id), found == list.cend() ? nullptr : *found);
        }
    }
    list = { make(1), make(2) };
    QCOMPARE(data.getDataIndex(2), 1);
    list.at(1)->setId(9);
    QCOMPARE(data.getDataIndex(2), -1);
    QCOMPARE(data.getDataIndex(9), 1);
}

void tst_Model::findsNodesWhileTheTreeChanges()
{
    // Others write to the lists of children directly, too. Each look-up is what a search finds.
    QRandomGenerator random(11);
    Data data;
    data.mRoot = Item(-1, true);
    int lastId = 0;
    for (int step = 0; step < 400; ++step) {
        QList<int> ids;
        QHash<int, QPair<int, int>> places;
        data.mRoot.visitAll([&](const Item &parent) {
            ids.append(parent.mId);
            for (int i = 0; i < parent.mChildren.size(); ++i)
                places.insert(parent.mChildren.at(i).mId, { parent.mId, i });
        });
        for (int id = 1; id <= lastId; ++id) {
            int index = -1;
            const Item *parent = data.getParentItem(id, index);
            const Item *item = data.findItem(id);
            QCOMPARE(item ? item->mId : -1, places.contains(id) ? id : -1);
            QCOMPARE(qMakePair(parent ? parent->mId : 0, index), places.value(id, { 0, -1 }));
            QCOMPARE(data.getPathIds(id).isEmpty(), !item);
        }
        const int id = ids.at(random.bounded(ids.size()));
        Item *item = data.findItem(id);
        QList<Item> &children = item->mChildren;
        const int action = random.bounded(6);
        if (action < 2)
            data.insertItem(*item, random.bounded(children.size() + 1), Item(++lastId, true));
        else if (action == 2)
            children.prepend(Item(++lastId, true));
        else if (action == 3)
            QCOMPARE(data.removeItem(id), id != -1);
        else if (action == 4 && !children.isEmpty())
            children.move(0, children.size() - 1);
        else if (!children.isEmpty())
            children.removeLast();
    }
}

void tst_Model::sharesCopiesOfNodes()
{
    QList<TutorialItemData *> list;
    const std::unique_ptr<Item> tree(Item::createFromJson(
        json("{\"id\":1,\"folder\":true,\"children\":[{\"id\":2},{\"id\":3,\"folder\":true,\"children\":[{\"id\":4}]},"
             "{\"id\":5,\"children\":[{\"id\":6}]}]}"),
        &list));
    QCOMPARE(list.size(), 6);
    qDeleteAll(list);
    Data data;
    data.mRoot = *tree;
    Data copy;
    copy.mRoot = data.mRoot;
    data.findItem(4)->mId = 40;
    QCOMPARE(data.getPathIds(40), (QList<int>{ 3, 40 }));
    QVERIFY(copy.findItem(4) && !copy.findItem(40));
    // What lies below a node that is no folder is not its content.
    QList<int> ids;
    copy.mRoot.collectIds(ids);
    QCOMPARE(ids, (QList<int>{ 2, 4, 3, 5, 1 }));
}

void tst_Model::keepsWhatWasReadBeforeAFault()
{
    QList<TutorialItemData *> list;
    mWarnings.expect(QStringLiteral("TutorialItemData::fromJson"));
    QVERIFY(!Item::createFromJson(json("{\"id\":1,\"children\":[{\"id\":2},3,{\"id\":4}]}"), &list));
    mWarnings.expect(QStringLiteral("TreeItem<class TutorialItemData>::createFromJson"));
    QVERIFY(!Item::createFromJson(json("{\"id\":5,\"children\":{}}"), &list));
    QCOMPARE(list.size(), 3);
    qDeleteAll(list);
}

void tst_Model::keepsTheOrderOfProperties()
{
    PropertyHash hash;
    for (const char *name : { "b", "a", "b" })
        hash.insert(QLatin1String(name), 1);
    QCOMPARE(hash.keyList().join(QString()), QStringLiteral("bab"));
    hash.remove(QStringLiteral("b"));
    QCOMPARE(hash.keyList().join(QString()), QStringLiteral("ba"));
    QVERIFY(!hash.contains(QStringLiteral("b")));
}

QTEST_GUILESS_MAIN(tst_Model)
#include "tst_Model.moc"
