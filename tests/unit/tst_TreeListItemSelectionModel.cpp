#include "EditingSession.h"
#include "quick/TreeListItemSelectionModel.h"
#include "quick/TutorialItemListModel.h"

#include <QStringListModel>
#include <QtTest>

namespace
{
QString join(const QVariantList &idList)
{
    return DataSupport::join(DataSupport::getIntList(idList), QStringLiteral(" "));
}
} // namespace

class TreeListItemSelectionModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void treeSelected_data();
    void treeSelected();
    void setSelectedIdList_data();
    void setSelectedIdList();
    void sameSelectionIsNoChange();
    void toggle();
    void betweenCurrentAnd_data();
    void betweenCurrentAnd();
    void between_data();
    void between();
    void survivesRefreshPartial();
    void otherModels();

private:
    QModelIndex at(int id) const { return mModel->getModelIndexById(id); }

    std::unique_ptr<EditingSession> mSession;
    std::unique_ptr<TutorialItemListModel> mModel;
    std::unique_ptr<TreeListItemSelectionModel> mSelection;
};

void TreeListItemSelectionModelTest::init()
{
    mSession = std::make_unique<EditingSession>();
    mSession->load(QStringLiteral("1 2[3 4[5] 6] 7 8[9]"));
    mModel = std::make_unique<TutorialItemListModel>();
    mSelection = std::make_unique<TreeListItemSelectionModel>(mModel.get());
}

void TreeListItemSelectionModelTest::cleanup()
{
    mSelection.reset();
    mModel.reset();
    mSession.reset();
}

void TreeListItemSelectionModelTest::treeSelected_data()
{
    QTest::addColumn<QList<int>>("clicks");
    QTest::addColumn<QString>("selected");
    QTest::addColumn<QString>("treeSelected");
    QTest::newRow("nothing") << QList<int>() << QString() << QString();
    QTest::newRow("root") << QList<int>({ -1 }) << QStringLiteral("-1") << QString();
    QTest::newRow("order of the tree") << QList<int>({ 7, 3 }) << QStringLiteral("7 3") << QStringLiteral("3 7");
    QTest::newRow("folder and child") << QList<int>({ 3, 2 }) << QStringLiteral("3 2") << QStringLiteral("2");
    QTest::newRow("folder and grandchild") << QList<int>({ 2, 5 }) << QStringLiteral("2 5") << QStringLiteral("2");
    QTest::newRow("root and items") << QList<int>({ -1, 8, 4 }) << QStringLiteral("-1 8 4") << QStringLiteral("4 8");
}

void TreeListItemSelectionModelTest::treeSelected()
{
    QFETCH(QList<int>, clicks);
    QSignalSpy changes(mSelection.get(), &TreeListItemSelectionModel::selectedIdListChanged);
    for (const int id : clicks)
        mSelection->select(at(id), QItemSelectionModel::Select);
    QCOMPARE(changes.count(), clicks.size());
    QCOMPARE(mSelection->getSelectedCount(), clicks.size());
    QTEST(join(mSelection->getSelectedIdList()), "selected");
    QTEST(join(mSelection->getTreeSelectedIdList()), "treeSelected");
    QCOMPARE(mSelection->property("selectedIdList").toList(), mSelection->getSelectedIdList());
    QCOMPARE(mSelection->getFirstSelectedModelIndex(), clicks.isEmpty() ? QModelIndex() : at(clicks.first()));
}

void TreeListItemSelectionModelTest::setSelectedIdList_data()
{
    QTest::addColumn<QList<int>>("before");
    QTest::addColumn<QList<int>>("idList");
    QTest::addColumn<QString>("selected");
    QTest::newRow("nothing") << QList<int>({ 1, 7 }) << QList<int>() << QString();
    QTest::newRow("order of the tree") << QList<int>() << QList<int>({ 9, 4, 2 }) << QStringLiteral("2 4 9");
    QTest::newRow("all") << QList<int>({ 5 }) << QList<int>({ 1, 2, 3, 4, 5, 6, 7, 8, 9, -1 })
                         << QStringLiteral("-1 1 2 3 4 5 6 7 8 9");
    QTest::newRow("unknown ids") << QList<int>({ 5 }) << QList<int>({ 77, 7 }) << QStringLiteral("7");
    QTest::newRow("another order before") << QList<int>({ 7, 1 }) << QList<int>({ 7, 1 }) << QStringLiteral("1 7");
}

void TreeListItemSelectionModelTest::setSelectedIdList()
{
    QFETCH(QList<int>, before);
    QFETCH(QList<int>, idList);
    for (const int id : before)
        mSelection->select(at(id), QItemSelectionModel::Select);
    mSelection->setCurrentIndex(at(3), QItemSelectionModel::NoUpdate);
    mSelection->setSelectedIdList(idList);
    QTEST(join(mSelection->getSelectedIdList()), "selected");
    QCOMPARE(mSelection->currentIndex(), at(3));
}

void TreeListItemSelectionModelTest::sameSelectionIsNoChange()
{
    mSelection->setSelectedIdList({ 2, 5, 6 });
    QSignalSpy changes(mSelection.get(), &TreeListItemSelectionModel::selectedIdListChanged);
    mSelection->setSelectedIdList({ 6, 5, 2 });
    QCOMPARE(changes.count(), 0);
}

void TreeListItemSelectionModelTest::toggle()
{
    mSelection->toggleSelected(at(3));
    mSelection->toggleSelected(at(7));
    QCOMPARE(join(mSelection->getSelectedIdList()), QStringLiteral("3 7"));
    mSelection->toggleSelected(at(3));
    QCOMPARE(join(mSelection->getSelectedIdList()), QStringLiteral("7"));
    QVERIFY(!mSelection->currentIndex().isValid());
}

void TreeListItemSelectionModelTest::betweenCurrentAnd_data()
{
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("clicked");
    QTest::addColumn<QString>("selected");
    QTest::newRow("downwards") << 1 << 7 << QStringLiteral("1 2 3 4 5 6 7");
    QTest::newRow("upwards") << 7 << 1 << QStringLiteral("1 2 3 4 5 6 7");
    QTest::newRow("across folders") << 9 << 5 << QStringLiteral("5 6 7 8 9");
    QTest::newRow("folder and its content") << 2 << 4 << QStringLiteral("2 3 4");
    QTest::newRow("the current row") << 4 << 4 << QStringLiteral("4");
    QTest::newRow("from the root") << -1 << 2 << QStringLiteral("-1 1 2");
}

void TreeListItemSelectionModelTest::betweenCurrentAnd()
{
    QFETCH(int, current);
    QFETCH(int, clicked);
    mSelection->select(at(8), QItemSelectionModel::Select);
    mSelection->setCurrentIndex(at(current), QItemSelectionModel::NoUpdate);
    mSelection->setSelectedBetweenCurrentAnd(at(clicked));
    QTEST(join(mSelection->getSelectedIdList()), "selected");
    QCOMPARE(mSelection->currentIndex(), at(current));
}

void TreeListItemSelectionModelTest::between_data()
{
    QTest::addColumn<int>("id1");
    QTest::addColumn<int>("id2");
    QTest::addColumn<QString>("selected");
    QTest::newRow("downwards") << 2 << 8 << QStringLiteral("2 7 8");
    QTest::newRow("upwards") << 8 << 2 << QStringLiteral("2 7 8");
    QTest::newRow("one row") << 7 << 7 << QStringLiteral("7");
    QTest::newRow("first unknown") << 3 << 7 << QStringLiteral("7");
    QTest::newRow("second unknown") << 1 << 99 << QStringLiteral("1");
    QTest::newRow("both unknown") << 3 << 99 << QString();
}

void TreeListItemSelectionModelTest::between()
{
    QFETCH(int, id1);
    QFETCH(int, id2);
    mSelection->setCurrentIndex(at(5), QItemSelectionModel::Select);
    mSelection->setSelectedBetween(id1, id2);
    QTEST(join(mSelection->getSelectedIdList()), "selected");
    QVERIFY(!mSelection->currentIndex().isValid());
}

void TreeListItemSelectionModelTest::survivesRefreshPartial()
{
    mSelection->setSelectedIdList({ 1, 3, 6, 9 });
    mSession->load(QStringLiteral("1 10 2[3 6] 8[4[5] 9]"));
    mModel->refreshPartial();
    QCOMPARE(join(mSelection->getTreeSelectedIdList()), QStringLiteral("1 3 6 9"));
}

void TreeListItemSelectionModelTest::otherModels()
{
    QStringListModel strings({ QStringLiteral("a") });
    TreeListItemSelectionModel selection(&strings);
    selection.select(strings.index(0), QItemSelectionModel::Select);
    const QRegularExpression noModel(QStringLiteral("QStandardItemModel not found"));
    for (int i = 0; i < 3; ++i)
        QTest::ignoreMessage(QtWarningMsg, noModel);
    QVERIFY(selection.getSelectedIdList().isEmpty());
    QVERIFY(selection.getTreeSelectedIdList().isEmpty());
    selection.setSelectedBetweenCurrentAnd(strings.index(0));
    QVERIFY(!selection.getFirstSelectedModelIndex().isValid());
    QCOMPARE(selection.getSelectedCount(), 1);

    mSelection->setSelectedIdList({ 3 });
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("modelIndex1 not found")));
    mSelection->setSelectedBetweenCurrentAnd(at(1));
    QCOMPARE(join(mSelection->getSelectedIdList()), QStringLiteral("3"));
}

QTEST_MAIN(TreeListItemSelectionModelTest)
#include "tst_TreeListItemSelectionModel.moc"
