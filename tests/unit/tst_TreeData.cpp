#include "model/TreeItem.h"
#include "model/TutorialItemData.h"
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
} // namespace

class tst_TreeData : public QObject
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

private:
    WarningGuard mWarnings;
};

void tst_TreeData::makesValidNames_data()
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

void tst_TreeData::makesValidNames()
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

void tst_TreeData::listsIdsAndNames()
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

void tst_TreeData::findsRecordsWhileTheListChanges()
{
    // Others write to the list directly. After each change every look-up is the one that a search
    // from the front finds, also where ids stand twice.
    QRandomGenerator random(7);
    Records records;
    Data data;
    QList<NameData *> &list = data.mDataList;
    const int idCount = 12;
    for (int step = 0; step < 2000; ++step) {
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

void tst_TreeData::findsRecordsWhoseIdsChange()
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

void tst_TreeData::findsNodes()
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

void tst_TreeData::findsNodesWhileTheTreeChanges()
{
    // Others write to the lists of children directly, too. Each look-up is what a search finds.
    QRandomGenerator random(11);
    TreeDataTemplate<TutorialItemData> data;
    data.mRoot = Item(-1, true);
    int lastId = 0;
    for (int step = 0; step < 400; ++step) {
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

void tst_TreeData::sharesCopiesOfNodes()
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

void tst_TreeData::removesNodesAndRecords()
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

void tst_TreeData::walksTheTree()
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

void tst_TreeData::readsTrees_data()
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

void tst_TreeData::readsTrees()
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

void tst_TreeData::keepsWhatWasReadBeforeAFault()
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

QTEST_GUILESS_MAIN(tst_TreeData)
#include "tst_TreeData.moc"
