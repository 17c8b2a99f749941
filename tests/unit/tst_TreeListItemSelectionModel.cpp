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

struct Tree : EditingSession
{
    Tree()
    {
        load(QStringLiteral("1 2[3 4[5] 6] 7 8[9]"));
        model.refresh();
    }

    QModelIndex at(int id) const { return model.getModelIndexById(id); }
    QString selected() const { return join(selection.getSelectedIdList()); }
    QString treeSelected() const { return join(selection.getTreeSelectedIdList()); }

    TutorialItemListModel model;
    TreeListItemSelectionModel selection{ &model };
};
} // namespace

class tst_TreeListItemSelectionModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void treeSelected();
    void betweenCurrentAnd();
    void keepsWhatStaysSelected();
    void isSetAsideWhileRowsGo();
};

void tst_TreeListItemSelectionModel::treeSelected()
{
    // In the order of the clicks, and in that of the tree without what a selected folder holds.
    Tree tree;
    for (const int id : { 7, 5, -1, 2, 9 })
        tree.selection.toggleSelected(tree.at(id));
    QCOMPARE(tree.selected(), QStringLiteral("7 5 -1 2 9"));
    QCOMPARE(tree.treeSelected(), QStringLiteral("2 7 9"));
    tree.selection.toggleSelected(tree.at(7));
    QCOMPARE(tree.selected(), QStringLiteral("5 -1 2 9"));
    // What stays where it is stays selected.
    tree.load(QStringLiteral("10 2[3 6] 8[4[5] 9]"));
    tree.model.refreshPartial();
    QCOMPARE(tree.treeSelected(), QStringLiteral("2 9"));
}

void tst_TreeListItemSelectionModel::betweenCurrentAnd()
{
    Tree tree;
    const auto selectedBetween = [&tree](int current, int clicked) {
        tree.selection.setCurrentIndex(tree.at(current), QItemSelectionModel::NoUpdate);
        tree.selection.setSelectedBetweenCurrentAnd(tree.at(clicked));
        return tree.selected();
    };
    QCOMPARE(selectedBetween(1, 7), QStringLiteral("1 2 3 4 5 6 7"));
    QCOMPARE(selectedBetween(9, 5), QStringLiteral("5 6 7 8 9"));
    QCOMPARE(selectedBetween(-1, 2), QStringLiteral("-1 1 2"));
    QCOMPARE(selectedBetween(4, 4), QStringLiteral("4"));
    QCOMPARE(tree.selection.currentIndex(), tree.at(4));
}

void tst_TreeListItemSelectionModel::keepsWhatStaysSelected()
{
    Tree tree;
    tree.selection.setSelectedIdList({ 9, 3, 1 });
    QSignalSpy changes(&tree.selection, &TreeListItemSelectionModel::selectedIdListChanged);
    tree.selection.setSelectedIdList({ 1, 3, 9 });
    QCOMPARE(changes.count(), 0);
    connect(&tree.selection, &QItemSelectionModel::selectionChanged, this,
            [&tree] { QVERIFY(tree.selection.isSelected(tree.at(3)) && tree.selection.isSelected(tree.at(9))); });
    tree.selection.setSelectedIdList({ 9, 3, 6, 7 });
    QCOMPARE(tree.treeSelected(), QStringLiteral("3 6 7 9"));
    // All at once: each signal lets the screen look at all rows.
    QCOMPARE(changes.count(), 1);
}

void tst_TreeListItemSelectionModel::isSetAsideWhileRowsGo()
{
    Tree tree;
    tree.selection.setSelectedIdList({ 1, 6, 9 });
    QSignalSpy changes(&tree.selection, &TreeListItemSelectionModel::selectedIdListChanged);
    tree.selection.setAside();
    tree.selection.putBack();
    QCOMPARE(changes.count(), 0);
    QCOMPARE(tree.treeSelected(), QStringLiteral("1 6 9"));
    tree.selection.setAside();
    for (const int id : { 1, 9 })
        tree.model.removeRow(tree.at(id).row(), tree.at(id).parent());
    QCOMPARE(changes.count(), 0);
    tree.selection.putBack();
    QCOMPARE(changes.count(), 1);
    QCOMPARE(tree.treeSelected(), QStringLiteral("6"));
    tree.selection.setAside();
    tree.model.removeRow(tree.at(6).row(), tree.at(6).parent());
    tree.selection.putBack();
    QCOMPARE(changes.count(), 2);
}

QTEST_MAIN(tst_TreeListItemSelectionModel)
#include "tst_TreeListItemSelectionModel.moc"
