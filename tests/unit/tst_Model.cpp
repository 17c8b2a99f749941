#include "model/PropertyHash.h"
#include "model/TreeItem.h"
#include "model/TutorialItemData.h"
#include "support/DocumentFakes.h"
#include "support/WarningGuard.h"

#include <QRandomGenerator>
#include <QtTest>

namespace
{
using Data = TreeDataTemplate<NameData>;
using Item = TreeItem<TutorialItemData>;

/// Owns what it adds to a list of records.
class Records
{
public:
    ~Records() { qDeleteAll(mOwned); }

    NameData *make(int id, const QString &name = QString())
    {
        mOwned.append(new NameData(id, name));
        return mOwned.last();
    }

private:
    QList<NameData *> mOwned;
};

JsonWrapper json(const char *text)
{
    return JsonWrapper(QString::fromUtf8(text));
}

Item branch(int id, const QList<Item> &children)
{
    Item item(id, true);
    item.mChildren = children;
    return item;
}

// (1(2 3(4)) 5), with 6 below a node that is no folder.
Item sampleTree()
{
    Item plain(5, false);
    plain.mChildren.append(Item(6, false));
    return branch(-1, { branch(1, { Item(2, false), branch(3, { Item(4, false) }) }), plain });
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

class tst_Model : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { mWarnings.begin(); }
    void cleanup() { mWarnings.end(); }

    void makesValidNames_data();
    void makesValidNames();
    void listsIdsAndNames();
    void findsRecordsWhileTheListChanges();
    void findsRecordsWhoseIdsChange();
    void findsNodes();
    void findsNodesWhileTheTreeChanges();
    void sharesCopiesOfNodes();
    void removesNodesAndRecords();
    void walksTheTree();
    void readsTrees_data();
    void readsTrees();
    void keepsWhatWasReadBeforeAFault();
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

void tst_Model::makesValidNames_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("candidate");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char *names, const char *candidate, const char *expected) {
        const QString list = QString::fromUtf8(names);
        QTest::addRow("%s in %s", candidate, names) << (list.isEmpty() ? QStringList() : list.split(QLatin1Char(',')))
                                                    << QString::fromUtf8(candidate) << QString::fromUtf8(expected);
    };
    row("", "abc", "abc");
    row("abd,ABC", "abc", "abc");
    row("x", "item007", "item007");
    row("abc", "abc", "abc1");
    row("abc,abc1", "abc", "abc2");
    row("item007", "item007", "item008");
    row("item007,item012", "item007", "item013");
    row("item999", "item999", "item1000");
    row("item7,item007", "item7", "item8");
    row("abc,abc(2)", "abc(2)", "abc(3)");
    row("abc(2)", "abc(2)", "abc(3)");
    row("abc(2),abc(10)", "abc(2)", "abc(11)");
    row("abc(7)", "abc(7)", "abc(8)");
    row("abc(x)", "abc(x)", "abc(x)1");
    row("abc()", "abc()", "abc()1");
    row("12", "12", "13");
    row("09,10", "09", "11");
    row("(3)", "(3)", "(4)");
    row("次,次1", "次", "次2");
    row("a1b", "a1b", "a1b1");
}

void tst_Model::makesValidNames()
{
    QFETCH(QStringList, names);
    QFETCH(QString, candidate);
    QFETCH(QString, expected);
    Records records;
    Data data;
    for (const QString &name : qAsConst(names))
        data.mDataList.append(records.make(data.mDataList.size(), name));
    QCOMPARE(data.getValidName(candidate), expected);
    QVERIFY(!names.contains(data.getValidName(candidate)));
}

void tst_Model::listsIdsAndNames()
{
    Records records;
    Data data;
    QCOMPARE(data.getNewId(), 1);
    for (const int id : { 2, 99999998, 99999999, 1, 100000000, -7 })
        data.mDataList.append(records.make(id, id == 1 ? QString() : QString::number(id)));
    QCOMPARE(data.getIdList(), (QList<int>{ 2, 99999998, 1, -7 }));
    QCOMPARE(data.getNameList().size(), 6);
    QCOMPARE(data.getNameList().at(3), QString());
    QCOMPARE(data.getNewId(), 3);
    QCOMPARE(data.getNewName(QStringLiteral("9999999"), 0), QStringLiteral("999999910"));
}

void tst_Model::findsRecordsWhileTheListChanges()
{
    // Others write to the list directly. After each change every look-up is the one that a search
    // from the front finds, also where ids stand twice.
    QRandomGenerator random(7);
    Records records;
    Data data;
    QList<NameData *> &list = data.mDataList;
    const int idCount = 12;
    for (int step = 0; step < 5000; ++step) {
        const int size = list.size();
        switch (random.bounded(size > 20 ? 6 : 4)) {
        case 0:
        case 1:
            list.append(records.make(random.bounded(idCount)));
            break;
        case 2:
            list.insert(random.bounded(size + 1), records.make(random.bounded(idCount)));
            break;
        case 3:
            if (size > 1)
                list.move(random.bounded(size), random.bounded(size));
            break;
        case 4:
            list.removeAt(random.bounded(size));
            break;
        default:
            list.takeFirst();
            break;
        }
        for (int id = -1; id <= idCount; ++id) {
            int expected = -1;
            for (int i = list.size() - 1; i >= 0; --i) {
                if (list.at(i)->mId == id)
                    expected = i;
            }
            QCOMPARE(data.getDataIndex(id), expected);
            QCOMPARE(data.getData(id), expected < 0 ? nullptr : list.at(expected));
        }
    }
    list.clear();
    QCOMPARE(data.getDataIndex(1), -1);
}

void tst_Model::findsRecordsWhoseIdsChange()
{
    Records records;
    Data data;
    for (int id = 1; id <= 5; ++id)
        data.mDataList.append(records.make(id));
    QCOMPARE(data.getDataIndex(3), 2);
    data.mDataList.at(2)->setId(9);
    QCOMPARE(data.getDataIndex(3), -1);
    QCOMPARE(data.getDataIndex(9), 2);
    data.mDataList.replace(4, records.make(3));
    QCOMPARE(data.getDataIndex(5), -1);
    QCOMPARE(data.getDataIndex(3), 4);
}

void tst_Model::findsNodes()
{
    TreeDataTemplate<TutorialItemData> data;
    data.mRoot = sampleTree();
    QCOMPARE(data.findItem(-1), &data.mRoot);
    QCOMPARE(data.findItem(7), nullptr);
    const QHash<int, QPair<int, int>> parents = { { 1, { -1, 0 } }, { 2, { 1, 0 } },  { 3, { 1, 1 } },
                                                  { 4, { 3, 0 } },  { 5, { -1, 1 } }, { 6, { 5, 0 } } };
    for (auto expected = parents.cbegin(); expected != parents.cend(); ++expected) {
        QVERIFY(data.findItem(expected.key()));
        QCOMPARE(data.findItem(expected.key())->mId, expected.key());
        int index = 77;
        Item *parent = data.getParentItem(expected.key(), index);
        QVERIFY(parent);
        QCOMPARE(parent->mId, expected->first);
        QCOMPARE(index, expected->second);
    }
    for (const int id : { -1, 7 }) {
        int index = 77;
        QCOMPARE(data.getParentItem(id, index), nullptr);
        QCOMPARE(index, -1);
        QCOMPARE(data.getPathIds(id), QList<int>());
    }
    QCOMPARE(data.getPathIds(4), (QList<int>{ 1, 3, 4 }));
}

void tst_Model::findsNodesWhileTheTreeChanges()
{
    // Others write to the lists of children directly, too. Each look-up is what a search finds.
    QRandomGenerator random(11);
    TreeDataTemplate<TutorialItemData> data;
    data.mRoot = Item(-1, true);
    int lastId = 0;
    for (int step = 0; step < 1500; ++step) {
        QList<int> ids;
        data.mRoot.visitAll([&ids](const Item &item) { ids.append(item.mId); });
        const int id = ids.at(random.bounded(ids.size()));
        Item *item = data.findItem(id);
        QVERIFY(item && item->mId == id);
        QList<Item> &children = item->mChildren;
        switch (random.bounded(6)) {
        case 0:
        case 1:
            data.insertItem(*item, random.bounded(children.size() + 1), Item(++lastId, true));
            break;
        case 2:
            children.prepend(Item(++lastId, true));
            break;
        case 3:
            if (children.size() > 1)
                children.move(0, children.size() - 1);
            break;
        case 4:
            QCOMPARE(data.removeItem(id), id != -1);
            break;
        default:
            if (!children.isEmpty())
                children.removeLast();
            break;
        }
        QHash<int, QPair<int, int>> places;
        data.mRoot.visitAll([&places](const Item &parent) {
            for (int i = 0; i < parent.mChildren.size(); ++i)
                places.insert(parent.mChildren.at(i).mId, { parent.mId, i });
        });
        for (int each = 1; each <= lastId; ++each) {
            int index = -1;
            const Item *parent = data.getParentItem(each, index);
            QCOMPARE(parent != nullptr, places.contains(each));
            QCOMPARE(data.findItem(each) != nullptr, places.contains(each));
            if (parent)
                QCOMPARE(qMakePair(parent->mId, index), places.value(each));
        }
    }
}

void tst_Model::sharesCopiesOfNodes()
{
    TreeDataTemplate<TutorialItemData> data;
    data.mRoot = sampleTree();
    TreeDataTemplate<TutorialItemData> copy;
    copy.mRoot = data.mRoot;
    data.findItem(4)->mId = 40;
    data.findItem(3)->mChildren.append(Item(41, false));
    QVERIFY(copy.findItem(4) && !copy.findItem(40) && !copy.findItem(41));
    QVERIFY(data.findItem(40) && data.findItem(41));
}

void tst_Model::removesNodesAndRecords()
{
    TreeDataTemplate<TutorialItemData> data;
    data.mRoot = sampleTree();
    QVERIFY(!data.removeItem(7));
    QVERIFY(!data.removeItem(-1));
    QVERIFY(data.removeItem(3));
    QVERIFY(!data.findItem(3) && !data.findItem(4) && data.findItem(2) && data.findItem(5));
    QVERIFY(data.removeItem(6));
    QVERIFY(data.findItem(5)->mChildren.isEmpty());

    auto *record = new TutorialItemData;
    data.mDataList.append(record);
    QVERIFY(!data.takeData(7));
    const std::unique_ptr<TutorialItemData> taken = data.takeData(-1);
    QCOMPARE(taken.get(), record);
    QVERIFY(data.mDataList.isEmpty());
}

void tst_Model::walksTheTree()
{
    const Item tree = sampleTree();
    QList<int> visited;
    tree.visitAll([&visited](const Item &item) { visited.append(item.mId); });
    QCOMPARE(visited, (QList<int>{ -1, 1, 2, 3, 4, 5, 6 }));
    QList<int> collected;
    tree.collectIds(collected);
    // What lies below a node that is no folder is not its content.
    QCOMPARE(collected, (QList<int>{ 2, 4, 3, 1, 5, -1 }));
}

void tst_Model::readsTrees_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QList<int>>("ids");
    QTest::addColumn<bool>("folder");

    QTest::newRow("nothing told") << QByteArray("{}") << QList<int>{ 0 } << false;
    QTest::newRow("parents first") << QByteArray("{\"id\":9,\"folder\":true,\"children\":[{\"id\":4,\"folder\":true,"
                                                 "\"children\":[{\"id\":7}]},{\"id\":2}]}")
                                   << QList<int>{ 9, 4, 7, 2 } << true;
    QTest::newRow("no folder") << QByteArray("{\"id\":9,\"folder\":false,\"children\":[{\"id\":4}]}")
                               << QList<int>{ 9, 4 } << false;
}

void tst_Model::readsTrees()
{
    QFETCH(QByteArray, text);
    QFETCH(QList<int>, ids);
    QFETCH(bool, folder);
    QList<TutorialItemData *> list;
    const std::unique_ptr<Item> item(Item::createFromJson(json(text.constData()), &list));
    QVERIFY(item);
    QCOMPARE(item->mFolder, folder);
    QList<int> visited;
    item->visitAll([&visited](const Item &node) { visited.append(node.mId); });
    QCOMPARE(visited, ids);
    QList<int> recordIds;
    for (const TutorialItemData *record : qAsConst(list))
        recordIds.append(record->mId);
    qDeleteAll(list);
    QCOMPARE(recordIds, ids);
}

void tst_Model::keepsWhatWasReadBeforeAFault()
{
    QList<TutorialItemData *> list;
    mWarnings.expect(QStringLiteral("TutorialItemData::fromJson"));
    QVERIFY(!Item::createFromJson(json("{\"id\":1,\"children\":[{\"id\":2},3,{\"id\":4}]}"), &list));
    QCOMPARE(list.size(), 2);
    mWarnings.expect(QStringLiteral("TreeItem<class TutorialItemData>::createFromJson"));
    QVERIFY(!Item::createFromJson(json("{\"id\":5,\"children\":{}}"), &list));
    QCOMPARE(list.size(), 3);
    qDeleteAll(list);
}

void tst_Model::readsRecords_data()
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

void tst_Model::readsRecords()
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

void tst_Model::readsNoRecordFrom_data()
{
    QTest::addColumn<QByteArray>("text");
    for (const char *text : { "12", "\"a\"", "null", "true", "[{}]" })
        QTest::newRow(text) << QByteArray(text);
}

void tst_Model::readsNoRecordFrom()
{
    QFETCH(QByteArray, text);
    mWarnings.expect(QStringLiteral("TutorialItemData::fromJson"));
    QCOMPARE(TutorialItemData::fromJson(json(text.constData())), nullptr);
}

void tst_Model::addressesFieldsByName_data()
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

void tst_Model::addressesFieldsByName()
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

void tst_Model::refusesUnknownNames()
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

void tst_Model::recordsChangesInATransaction_data()
{
    QTest::addColumn<QVariant>("value");

    for (const char *property : { "name", "windowKey", "condition", "icon", "hint", "hint2", "command" })
        QTest::newRow(property) << QVariant(QStringLiteral("a"));
    for (const char *property : { "x", "y", "jump", "jumpNo" })
        QTest::newRow(property) << QVariant(7);
    QTest::newRow("showArrow") << QVariant(false);
    QTest::newRow("prohibited") << QVariant(true);
}

void tst_Model::recordsChangesInATransaction()
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

void tst_Model::writesJson()
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

void tst_Model::copiesFields()
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

void tst_Model::keepsTheOrderOfProperties()
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

void tst_Model::readsTypedProperties()
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

void tst_Model::namesRecords()
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

void tst_Model::givesTheLastContextAndHistory()
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

QTEST_GUILESS_MAIN(tst_Model)
#include "tst_Model.moc"
