#include "EditingSession.h"
#include "quick/TreeListItemSelectionModel.h"
#include "quick/TutorialItemListModel.h"

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
    void treeSelected();
    void setSelectedIdList();
    void betweenCurrentAnd_data();
    void betweenCurrentAnd();
    void between();
    void survivesRefreshPartial();

private:
    QModelIndex at(int id) const { return mModel->getModelIndexById(id); }
    QString selected() const { return join(mSelection->getSelectedIdList()); }

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

void TreeListItemSelectionModelTest::treeSelected()
{
    // In the order of the clicks, and in that of the tree without what a selected folder holds.
    for (const int id : { 7, 5, -1, 2, 9 })
        mSelection->toggleSelected(at(id));
    QCOMPARE(selected(), QStringLiteral("7 5 -1 2 9"));
    QCOMPARE(join(mSelection->getTreeSelectedIdList()), QStringLiteral("2 7 9"));
    mSelection->toggleSelected(at(7));
    QCOMPARE(selected(), QStringLiteral("5 -1 2 9"));
}

void TreeListItemSelectionModelTest::setSelectedIdList()
{
    mSelection->setCurrentIndex(at(3), QItemSelectionModel::Select);
    mSelection->setSelectedIdList({ 9, 4, 77, 2 });
    QCOMPARE(selected(), QStringLiteral("2 4 9"));
    QCOMPARE(mSelection->currentIndex(), at(3));
    QSignalSpy changes(mSelection.get(), &TreeListItemSelectionModel::selectedIdListChanged);
    mSelection->setSelectedIdList({ 4, 9, 2 });
    QCOMPARE(changes.count(), 0);
}

void TreeListItemSelectionModelTest::betweenCurrentAnd_data()
{
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("clicked");
    QTest::addColumn<QString>("selected");
    QTest::newRow("downwards") << 1 << 7 << QStringLiteral("1 2 3 4 5 6 7");
    QTest::newRow("upwards across folders") << 9 << 5 << QStringLiteral("5 6 7 8 9");
    QTest::newRow("the current row") << 4 << 4 << QStringLiteral("4");
    QTest::newRow("from the root") << -1 << 2 << QStringLiteral("-1 1 2");
}

void TreeListItemSelectionModelTest::betweenCurrentAnd()
{
    QFETCH(int, current);
    QFETCH(int, clicked);
    mSelection->setCurrentIndex(at(current), QItemSelectionModel::NoUpdate);
    mSelection->setSelectedBetweenCurrentAnd(at(clicked));
    QTEST(selected(), "selected");
    QCOMPARE(mSelection->currentIndex(), at(current));
}

void TreeListItemSelectionModelTest::between()
{
    mSelection->setSelectedBetween(8, 2);
    QCOMPARE(selected(), QStringLiteral("2 7 8"));
    mSelection->setSelectedBetween(3, 7); // only rows of the root count
    QCOMPARE(selected(), QStringLiteral("7"));
}

void TreeListItemSelectionModelTest::survivesRefreshPartial()
{
    mSelection->setSelectedIdList({ 1, 3, 6, 9 });
    mSession->load(QStringLiteral("1 10 2[3 6] 8[4[5] 9]"));
    mModel->refreshPartial();
    QCOMPARE(join(mSelection->getTreeSelectedIdList()), QStringLiteral("1 3 6 9"));
}

QTEST_MAIN(TreeListItemSelectionModelTest)
#include "tst_TreeListItemSelectionModel.moc"
