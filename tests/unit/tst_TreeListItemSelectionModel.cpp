#include "quick/TreeListItemSelectionModel.h"
#include "quick/TutorialItemListModel.h"
#include "support/EditingSession.h"

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
    void betweenCurrentAnd();
    void keepsWhatStaysSelected();
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

void TreeListItemSelectionModelTest::betweenCurrentAnd()
{
    const auto selectedBetween = [this](int current, int clicked) {
        mSelection->setCurrentIndex(at(current), QItemSelectionModel::NoUpdate);
        mSelection->setSelectedBetweenCurrentAnd(at(clicked));
        return selected();
    };
    QCOMPARE(selectedBetween(1, 7), QStringLiteral("1 2 3 4 5 6 7"));
    QCOMPARE(selectedBetween(9, 5), QStringLiteral("5 6 7 8 9"));
    QCOMPARE(selectedBetween(-1, 2), QStringLiteral("-1 1 2"));
    QCOMPARE(mSelection->currentIndex(), at(-1));
}

void TreeListItemSelectionModelTest::keepsWhatStaysSelected()
{
    mSelection->setSelectedIdList({ 9, 3, 1 });
    QSignalSpy changes(mSelection.get(), &TreeListItemSelectionModel::selectedIdListChanged);
    mSelection->setSelectedIdList({ 1, 3, 9 });
    QCOMPARE(changes.count(), 0);
    connect(mSelection.get(), &TreeListItemSelectionModel::selectionChanged, this,
            [this] { QVERIFY(mSelection->isSelected(at(3)) && mSelection->isSelected(at(9))); });
    mSelection->setSelectedIdList({ 9, 3, 6, 7 });
    QCOMPARE(join(mSelection->getTreeSelectedIdList()), QStringLiteral("3 6 7 9"));
    // All at once: each signal lets the screen look at all rows.
    QCOMPARE(changes.count(), 1);
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
