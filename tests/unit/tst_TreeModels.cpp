#include "quick/ProblemListModel.h"
#include "quick/TreeDropRules.h"
#include "quick/TreeListItemSelectionModel.h"
#include "quick/TutorialItemListModel.h"
#include "support/EditingSession.h"

#include <QtTest>

#include <algorithm>

namespace
{
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
    void keepsWhatStaysSelected()
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
    void isSetAsideWhileRowsGo()
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
    void landsWhereTheMarkerStands()
    {
        // The dragged row, those above and below the gap, the mouse's level, and what comes of a drop there; nothing
        // where it is refused. There is no row 0: that is the end of the list.
        struct Row
        {
            const char *tree;
            int dragged;
            int up;
            int low;
            int mouseDepth;
            const char *shape;
        };
        const Row rows[] = {
            { "1[2 3] 4", 3, 3, 4, 0, "1[2] 3 4" },
            { "1[2[3[4]]] 5 6", 6, 4, 5, 9, "1[2[3[4 6]]] 5" },
            { "1[2[3[4]]] 5 6", 6, 4, 5, 1, "1[2[3[4]] 6] 5" },
            { "5 1[2[3[4]]]", 5, 4, 0, -3, "1[2[3[4]]] 5" },
            { "1 2[3 4]", 1, 2, 3, 1, "2[1 3 4]" },
            { "1 2 3", 1, 1, 2, 0, "" },
            { "1[2 3]", 1, 2, 3, 1, "" },
            // A row does not leave its folder for the place above it.
            { "1[] 2[3]", 3, 1, 2, 0, "" },
            // Below the last folder, which is closed or empty.
            { "1 2[3[]]", 1, 3, 0, 2, "2[3[1]]" },
            { "1 2[3[4]]", 3, 3, 0, 0, "1 2[] 3[4]" },
            { "1[2[3[]]]", 2, 3, 0, 0, "1[] 2[3[]]" },
        };
        for (const Row &row : rows) {
            EditingSession session;
            session.load(QString::fromLatin1(row.tree));
            TutorialItemListModel model;
            const QVariantMap drop =
                model.calcDrop({ row.dragged }, model.getModelIndexById(row.up), model.getModelIndexById(row.low),
                               treeDropX(row.mouseDepth) + 19); // the level's last pixel
            const QModelIndex target = model.getModelIndexById(drop.value(QStringLiteral("targetId")).toInt());
            if (drop.value(QStringLiteral("before")).toBool())
                model.moveIdListBeforeIndex(target, { row.dragged });
            else if (!drop.isEmpty())
                model.moveIdListIntoIndex(target, { row.dragged });
            model.refresh();
            QCOMPARE(drop.isEmpty() ? QString() : session.shape(), QString::fromLatin1(row.shape));
            const int depth = model.getDepth(model.getModelIndexById(row.dragged));
            QCOMPARE(drop.value(QStringLiteral("x"), treeDropX(depth)).toInt(), treeDropX(depth));
        }
    }
    void problemsKeepTheirRows()
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
};

QTEST_MAIN(tst_TreeModels)
#include "tst_TreeModels.moc"
