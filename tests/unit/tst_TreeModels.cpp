#include "quick/ProblemListModel.h"
#include "quick/TreeDropRules.h"
#include "quick/TreeListItemSelectionModel.h"
#include "quick/TutorialItemListModel.h"
#include "support/EditingSession.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QtTest>

#include <algorithm>

namespace
{
int idOf(const QModelIndex &index)
{
    return index.data(TutorialItemListModel::RoleId).toInt();
}

/// What the view shows, from the root row on, with those folders open. The row to skip is left out
/// with those below it.
QList<int> visibleRows(const QModelIndex &index, const QSet<int> &open, int skip = 0)
{
    QList<int> ids;
    if (idOf(index) == skip)
        return ids;
    ids.append(idOf(index));
    for (int i = 0; open.contains(idOf(index)) && i < index.model()->rowCount(index); ++i)
        ids += visibleRows(index.model()->index(i, 0, index), open, skip);
    return ids;
}

struct Tree : EditingSession
{
    Tree()
    {
        load(QStringLiteral("1 2[3 4[5] 6] 7 8[9]"));
        model.refresh();
    }

    QModelIndex at(int id) const { return model.getModelIndexById(id); }
    static QString join(const QVariantList &ids)
    {
        return DataSupport::join(DataSupport::getIntList(ids), QStringLiteral(" "));
    }
    QString treeSelected() const { return join(selection.getTreeSelectedIdList()); }

    TutorialItemListModel model;
    TreeListItemSelectionModel selection{ &model };
};
} // namespace

/// What the tree shows and takes: selection, drops and the fields of its rows. How the rows follow the tree is a part
/// of the random sessions.
class tst_TreeModels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void prohibitsFolders();
    void selectsInTwoOrders();
    void keepsWhatStaysSelected();
    void isSetAsideWhileRowsGo();
    void decidesDrops();
    void landsWhereTheMarkerStands();
    void problemsKeepTheirRows();

private:
    void checkDrop(EditingSession &session, const QSet<int> &open, int dragged, int gap, int mouseDepth);

    int mAccepted = 0;
};

void tst_TreeModels::prohibitsFolders()
{
    Tree tree;
    tree.sequence(QStringLiteral("edit"), [&] { tree.model.setValue(2, QStringLiteral("prohibited"), true); });
    QString prohibited;
    for (const int id : tree.recordIds())
        prohibited += QString::number(tree.record(id)->mProhibited);
    QCOMPARE(prohibited, QStringLiteral("001011000"));
}

void tst_TreeModels::selectsInTwoOrders()
{
    // In the order of the clicks, and in that of the tree without what a selected folder holds.
    Tree tree;
    for (const int id : { 7, 5, -1, 2, 9 })
        tree.selection.toggleSelected(tree.at(id));
    QCOMPARE(Tree::join(tree.selection.getSelectedIdList()), QStringLiteral("7 5 -1 2 9"));
    QCOMPARE(tree.treeSelected(), QStringLiteral("2 7 9"));
    tree.selection.toggleSelected(tree.at(7));
    QCOMPARE(Tree::join(tree.selection.getSelectedIdList()), QStringLiteral("5 -1 2 9"));
    // A range goes through all levels, and may be one row.
    tree.selection.setCurrentIndex(tree.at(5), QItemSelectionModel::NoUpdate);
    tree.selection.setSelectedBetweenCurrentAnd(tree.at(5));
    QCOMPARE(tree.treeSelected(), QStringLiteral("5"));
    tree.selection.setSelectedBetweenCurrentAnd(tree.at(9));
    QCOMPARE(tree.treeSelected(), QStringLiteral("5 6 7 8"));
    tree.selection.setSelectedIdList({ 2, 5, 9 });
    // What stays where it is stays selected.
    tree.load(QStringLiteral("10 2[3 6] 8[4[5] 9]"));
    tree.model.refreshPartial();
    QCOMPARE(tree.treeSelected(), QStringLiteral("2 9"));
}

void tst_TreeModels::keepsWhatStaysSelected()
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

void tst_TreeModels::isSetAsideWhileRowsGo()
{
    Tree tree;
    tree.selection.setSelectedIdList({ 1, 6, 9 });
    QSignalSpy changes(&tree.selection, &TreeListItemSelectionModel::selectedIdListChanged);
    tree.selection.setAside();
    tree.selection.putBack();
    QCOMPARE(tree.treeSelected(), QStringLiteral("1 6 9"));
    int count = 0;
    for (const QList<int> &gone : { QList<int>{ 1, 9 }, QList<int>{ 6 } }) {
        tree.selection.setAside();
        for (const int id : gone)
            tree.model.removeRow(tree.at(id).row(), tree.at(id).parent());
        QCOMPARE(changes.count(), count);
        tree.selection.putBack();
        QCOMPARE(changes.count(), ++count);
        QCOMPARE(tree.treeSelected(), QLatin1String(count == 1 ? "6" : ""));
    }
}

void tst_TreeModels::decidesDrops()
{
    // Gives "<whether before> <target>". There is no row 0: that is the end of the list. What is refused shows in
    // what a drop does.
    const auto drop = [](const char *tree, int dragged, int up, int low, int mouseDepth) {
        EditingSession session;
        session.load(QString::fromLatin1(tree));
        const TutorialItemListModel model;
        const QVariantMap map = model.calcDrop({ dragged }, model.getModelIndexById(up), model.getModelIndexById(low),
                                               treeDropX(mouseDepth) + 19); // the level's last pixel
        const auto text = [&map](const char *key) { return map.value(QLatin1String(key)).toString(); };
        return QStringLiteral("%1 %2").arg(text("before"), text("targetId")).trimmed();
    };
    QCOMPARE(drop("1[2 3] 4", 3, 3, 4, 0), QStringLiteral("true 4"));
    QCOMPARE(drop("1[2[3[4]]] 5", 5, 4, 0, 9), QStringLiteral("false 3"));
    QCOMPARE(drop("1[2[3[4]]] 5", 5, 4, 0, -3), QStringLiteral("false -1"));
    // A row does not leave its folder for the place above it.
    QCOMPARE(drop("1[] 2[3]", 3, 1, 2, 0), QString());
    // Below the last folder, which is closed or empty.
    QCOMPARE(drop("1 2[3[]]", 1, 3, 0, 2), QStringLiteral("false 3"));
    QCOMPARE(drop("1 2[3[4]]", 3, 3, 0, 0), QStringLiteral("false -1"));
    QCOMPARE(drop("1[2[3[]]]", 2, 3, 0, 0), QStringLiteral("false -1"));
}

void tst_TreeModels::landsWhereTheMarkerStands()
{
    static const char *const trees[] = { "1 2[3 4[5 6[]] 7] 8",    "1[2[3[4[5]]]] 6", "1[] 2[3] 4[5[6 7] 8[]] 9",
                                         "1[2[] 3[]] 4[5[] 6[7]]", "1 2 3[4 5 6]",    "1[2 3[4[] 5[6 7[8]]]]" };
    QRandomGenerator random(7);
    for (int round = 0; round < 60; ++round) {
        EditingSession session;
        session.load(QLatin1String(trees[round % 6]));
        QSet<int> open{ -1 };
        for (const int id : session.recordIds()) {
            if (random.bounded(3) > 0)
                open.insert(id);
        }
        const QList<int> visible = visibleRows(TutorialItemListModel().getRootIndex(), open);
        for (const int dragged : visible.mid(1)) {
            for (int gap = 0; gap < visible.size() && !QTest::currentTestFailed(); ++gap)
                checkDrop(session, open, dragged, gap, random.bounded(-1, 5));
        }
    }
    QVERIFY(mAccepted > 1000);
}

void tst_TreeModels::checkDrop(EditingSession &session, const QSet<int> &open, int dragged, int gap, int mouseDepth)
{
    TutorialItemListModel model;
    const QList<int> visible = visibleRows(model.getRootIndex(), open);
    const QModelIndex up = model.getModelIndexById(visible.at(gap));
    const QModelIndex low = model.getModelIndexById(visible.value(gap + 1));
    const QVariantMap drop = model.calcDrop({ dragged }, up, low, treeDropX(mouseDepth));
    if (drop.isEmpty())
        return;
    ++mAccepted;

    // The rows that stay, with the dragged one in the gap.
    QList<int> expected = visibleRows(model.getRootIndex(), open, dragged);
    int position = gap;
    while (!expected.contains(visible.at(position)))
        --position;
    expected.insert(expected.indexOf(visible.at(position)) + 1, dragged);

    const QString shape = session.shape();
    const QModelIndex target = model.getModelIndexById(drop.value(QStringLiteral("targetId")).toInt());
    if (drop.value(QStringLiteral("before")).toBool())
        model.moveIdListBeforeIndex(target, { dragged });
    else
        model.moveIdListIntoIndex(target, { dragged });
    model.refresh();

    const QByteArray place =
        QStringLiteral("%1: %2 below %3 at %4").arg(shape).arg(dragged).arg(visible.at(gap)).arg(mouseDepth).toUtf8();
    const QModelIndex moved = model.getModelIndexById(dragged);
    QVERIFY2(session.shape() != shape, place.constData());
    QVERIFY2(treeDropX(model.getDepth(moved)) == drop.value(QStringLiteral("x")).toInt(), place.constData());
    // A row that goes into a closed folder is the last of it; all others stand where the gap was.
    QSet<int> shown = open;
    shown.remove(dragged);
    const QList<int> after = visibleRows(model.getRootIndex(), shown);
    const bool last = moved.row() == model.rowCount(moved.parent()) - 1;
    QVERIFY2(after.contains(dragged) ? after == expected : last, place.constData());
    session.history().undo();
}

void tst_TreeModels::problemsKeepTheirRows()
{
    QRandomGenerator random(7);
    ProblemListModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QVector<Problem> problems;
    for (int round = 0; round < 100; ++round) {
        // A few, or half of them, go, come, move and change; some items have several of one rule.
        const int edits = round % 10 == 0 ? problems.size() / 2 : 1 + int(random.bounded(3));
        for (int i = 0; i < edits || problems.size() < 100; ++i) {
            const Problem problem{ QStringLiteral("rule"), Problem::Severity(random.bounded(3)),
                                   int(random.bounded(150)), QStringLiteral("name"), QString::number(round) };
            problems.insert(int(random.bounded(problems.size() + 1)), problem);
            if (problems.size() > 100)
                problems.remove(int(random.bounded(problems.size())));
        }
        QPersistentModelIndex first(model.index(0));
        const QString item = first.data(ProblemListModel::RoleItemId).toString();
        model.show(problems);
        QStringList shown, meant;
        QCOMPARE(model.rowCount(), problems.size());
        for (int row = 0; row < problems.size(); ++row) {
            shown.append(model.index(row).data(ProblemListModel::RoleItemId).toString()
                         + model.index(row).data().toString());
            meant.append(QString::number(problems.at(row).itemId) + problems.at(row).text);
        }
        QCOMPARE(shown, meant);
        if (first.isValid())
            QCOMPARE(first.data(ProblemListModel::RoleItemId).toString(), item);
    }
    // One that moves takes only its own row with it, wherever it goes.
    QVector<Problem> moved;
    for (int id = 0; id < 40; ++id)
        moved.append({ QStringLiteral("rule"), Problem::Severity::Error, id, QString(), QString() });
    for (const auto &ends : { qMakePair(0, 39), qMakePair(39, 0), qMakePair(20, 5) }) {
        model.show(moved);
        QVector<QPersistentModelIndex> rows;
        for (int row = 0; row < moved.size(); ++row)
            rows.append(model.index(row));
        moved.move(ends.first, ends.second);
        model.show(moved);
        QCOMPARE(std::count_if(rows.cbegin(), rows.cend(), [](const auto &row) { return row.isValid(); }), 39);
    }
}

QTEST_MAIN(tst_TreeModels)
#include "tst_TreeModels.moc"
