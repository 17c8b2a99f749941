#include "EditingSession.h"
#include "quick/TreeDropRules.h"
#include "quick/TutorialItemListModel.h"

#include <QRandomGenerator>
#include <QtTest>

namespace
{
using Model = TutorialItemListModel;

int idOf(const QModelIndex &index)
{
    return index.isValid() ? index.data(Model::RoleId).toInt() : -2;
}

/// What the view shows, from the root row on, with those folders open. Rows below the one to skip
/// are left out with it.
void listVisible(const Model &model, const QModelIndex &index, const QSet<int> &open, int skip, QList<int> &ids)
{
    if (idOf(index) == skip)
        return;
    ids.append(idOf(index));
    if (!open.contains(idOf(index)))
        return;
    for (int i = 0; i < model.rowCount(index); ++i)
        listVisible(model, model.index(i, 0, index), open, skip, ids);
}

QString randomTree(QRandomGenerator &random, int &id, int depth)
{
    QString text;
    const int count = random.bounded(depth == 0 ? 2 : 0, 5);
    for (int i = 0; i < count; ++i) {
        text += QString::number(id++);
        if (depth < 3 && random.bounded(2) == 0)
            text += QLatin1Char('[') + randomTree(random, id, depth + 1) + QLatin1Char(']');
        text += QLatin1Char(' ');
    }
    return text;
}
} // namespace

class TreeDropRulesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void decides_data();
    void decides();
    void refusesTheRowsTogether();
    void landsWhereTheMarkerStands();
    void readsTheLevelFromTheMouse();

private:
    void checkDrop(EditingSession &session, Model &model, const QSet<int> &open, int dragged, int gap, int mouseDepth);

    int mAccepted = 0;
};

void TreeDropRulesTest::decides_data()
{
    QTest::addColumn<QString>("tree");
    QTest::addColumn<int>("dragged");
    QTest::addColumn<int>("up");
    QTest::addColumn<int>("low"); // -2 is the end of the list
    QTest::addColumn<int>("mouseDepth");
    QTest::addColumn<QString>("expected"); // "<before or into> <target> in <folder> at <depth>", empty if refused

    const auto row = [](const char *name, const char *tree, int dragged, int up, int low, int mouseDepth,
                        const char *expected) {
        QTest::newRow(name) << QString::fromLatin1(tree) << dragged << up << low << mouseDepth
                            << QString::fromLatin1(expected);
    };
    row("below itself", "1 2 3", 1, 1, 2, 0, "");
    row("above itself", "1 2 3", 2, 1, 2, 0, "");
    row("last, below itself", "1 2 3", 3, 3, -2, 0, "");
    row("between leaves", "1 2 3", 3, 1, 2, 5, "before 2 in -1 at 0");
    row("between leaves of a folder", "1[2 3] 4", 4, 2, 3, 0, "before 3 in 1 at 1");
    row("end of the list", "1 2 3", 1, 3, -2, 4, "into -1 in -1 at 0");
    row("first in the root", "1 2 3", 3, -1, 1, 3, "before 1 in -1 at 0");
    row("first in a folder", "1[2 3] 4", 4, 1, 2, 0, "before 2 in 1 at 1");
    row("already first in its folder", "1[2 3] 4", 2, 1, 2, 1, "");
    row("folder into itself, first", "1[2 3] 4", 1, 1, 2, 1, "");
    row("folder between its own rows", "1[2 3] 4", 1, 2, 3, 1, "");
    row("folder below its own rows", "1[2 3] 4", 1, 3, 4, 1, "");
    row("end of a folder", "1[2 3] 4", 4, 3, 4, 1, "into 1 in 1 at 1");
    row("left of a folder's end", "1[2 3] 4 5", 5, 3, 4, 0, "before 4 in -1 at 0");
    row("left of a folder's end, already there", "1[2 3] 4 5", 4, 3, 4, 0, "");
    row("out of its folder by the mouse alone", "1[2 3] 4", 3, 3, 4, 0, "before 4 in -1 at 0");
    row("out of its folder, but the mouse stays", "1[2 3] 4", 3, 3, 4, 1, "");
    row("three levels, innermost", "1[2[3[4]]] 5", 5, 4, -2, 9, "into 3 in 3 at 3");
    row("three levels, in between", "1[2[3[4]]] 5", 5, 4, -2, 2, "into 2 in 2 at 2");
    row("three levels, one step in", "1[2[3[4]]] 5", 5, 4, -2, 1, "into 1 in 1 at 1");
    row("three levels, left of all", "1[2[3[4]]] 5", 5, 4, -2, -3, "into -1 in -1 at 0");
    row("out to a level in between", "1[2[3[4]]] 5", 4, 4, 5, 2, "into 2 in 2 at 2");
    row("into an empty folder", "1[] 2 3", 3, 1, 2, 1, "into 1 in 1 at 1");
    row("below an empty folder", "1[] 2 3", 3, 1, 2, 0, "before 2 in -1 at 0");
    row("below an empty folder, already there", "1[] 2 3", 2, 1, 2, 0, "");
    row("into the empty folder above", "1[] 2 3", 2, 1, 2, 1, "into 1 in 1 at 1");
    row("into a folder at the end", "1 2[]", 1, 2, -2, 1, "into 2 in 2 at 1");
    row("below a folder at the end", "1 2[]", 1, 2, -2, 0, "into -1 in -1 at 0");
    row("empty folder into itself", "1[] 2", 1, 1, 2, 1, "");
    row("empty folder, last of its folder", "1[2 3[]] 4", 3, 3, 4, 1, "");
    row("empty folder out of its folder", "1[2 3[]] 4", 3, 3, 4, 0, "before 4 in -1 at 0");
    row("beside its own folder", "1[] 2[3]", 3, 1, 2, 0, "");
    row("into its folder's neighbour", "1[] 2[3]", 3, 1, 2, 1, "into 1 in 1 at 1");
}

void TreeDropRulesTest::decides()
{
    QFETCH(QString, tree);
    QFETCH(int, dragged);
    QFETCH(int, up);
    QFETCH(int, low);
    QFETCH(int, mouseDepth);
    QFETCH(QString, expected);

    EditingSession session;
    session.load(tree);
    const Model model;
    const QVariantMap drop =
        model.calcDrop({ dragged }, model.getModelIndexById(up),
                       low == -2 ? QModelIndex() : model.getModelIndexById(low), treeDropX(mouseDepth));
    const QString text = drop.isEmpty()
        ? QString()
        : QStringLiteral("%1 %2 in %3 at %4")
              .arg(drop.value(QStringLiteral("before")).toBool() ? QStringLiteral("before") : QStringLiteral("into"))
              .arg(drop.value(QStringLiteral("targetId")).toInt())
              .arg(drop.value(QStringLiteral("folderId")).toInt())
              .arg(treeDropDepthAt(drop.value(QStringLiteral("x")).toDouble()));
    QCOMPARE(text, expected);
}

void TreeDropRulesTest::refusesTheRowsTogether()
{
    EditingSession session;
    session.load(QStringLiteral("1 2[3 4] 5"));
    const Model model;
    const QModelIndex up = model.getModelIndexById(3);
    const QModelIndex low = model.getModelIndexById(4);
    QVERIFY(!model.calcDrop({ 1, 5 }, up, low, 61).isEmpty());
    QVERIFY(model.calcDrop({ 1, 2 }, up, low, 61).isEmpty());
    QVERIFY(model.calcDrop({ 1, 77 }, up, low, 61).isEmpty());
    QVERIFY(model.calcDrop({}, up, low, 61).isEmpty());
    QVERIFY(model.calcDrop({ 1 }, QModelIndex(), low, 61).isEmpty());
}

void TreeDropRulesTest::landsWhereTheMarkerStands()
{
    QRandomGenerator random(7);
    for (int round = 0; round < 60; ++round) {
        EditingSession session;
        int nextId = 1;
        session.load(randomTree(random, nextId, 0));
        Model model;
        QSet<int> open{ -1 };
        for (int id = 1; id < nextId; ++id) {
            if (random.bounded(3) > 0)
                open.insert(id);
        }
        QList<int> visible;
        listVisible(model, model.getRootIndex(), open, -2, visible);
        for (const int dragged : qAsConst(visible)) {
            for (int gap = 0; dragged >= 0 && gap < visible.size(); ++gap) {
                checkDrop(session, model, open, dragged, gap, random.bounded(-1, 5));
                if (QTest::currentTestFailed())
                    return;
            }
        }
    }
    QVERIFY(mAccepted > 2000);
}

void TreeDropRulesTest::checkDrop(EditingSession &session, Model &model, const QSet<int> &open, int dragged, int gap,
                                  int mouseDepth)
{
    QList<int> visible;
    listVisible(model, model.getRootIndex(), open, -2, visible);
    const QModelIndex up = model.getModelIndexById(visible.at(gap));
    const QModelIndex low = gap + 1 < visible.size() ? model.getModelIndexById(visible.at(gap + 1)) : QModelIndex();
    const QVariantMap drop = model.calcDrop({ dragged }, up, low, treeDropX(mouseDepth));
    if (drop.isEmpty())
        return;
    ++mAccepted;

    // The rows that stay, with the dragged one in the gap.
    QList<int> expected;
    listVisible(model, model.getRootIndex(), open, dragged, expected);
    int position = gap;
    while (!expected.contains(visible.at(position)))
        --position;
    expected.insert(expected.indexOf(visible.at(position)) + 1, dragged);

    const QString shape = session.shape();
    const QModelIndex target = model.getModelIndexById(drop.value(QStringLiteral("targetId")).toInt());
    const bool before = drop.value(QStringLiteral("before")).toBool();
    session.sequence(QStringLiteral("move"), [&] {
        if (before)
            model.moveIdListBeforeIndex(target, { dragged });
        else
            model.moveIdListIntoIndex(target, { dragged });
    });
    model.refreshPartial();

    const QByteArray place = QStringLiteral("%1: %2 below %3 at %4 gives %5")
                                 .arg(shape)
                                 .arg(dragged)
                                 .arg(idOf(up))
                                 .arg(mouseDepth)
                                 .arg(session.shape())
                                 .toUtf8();
    const QModelIndex moved = model.getModelIndexById(dragged);
    QVERIFY2(session.shape() != shape, place.constData());
    QVERIFY2(moved.isValid(), place.constData());
    QVERIFY2(model.getParentId(moved) == drop.value(QStringLiteral("folderId")).toInt(), place.constData());
    QVERIFY2(treeDropX(model.getDepth(moved)) == drop.value(QStringLiteral("x")).toInt(), place.constData());
    // A row that goes into a closed folder is the last of it; all others stand where the gap was.
    QSet<int> seen = open;
    seen.remove(dragged);
    QList<int> after;
    listVisible(model, model.getRootIndex(), seen, -2, after);
    if (after.contains(dragged))
        QVERIFY2(after == expected, place.constData());
    else
        QVERIFY2(moved.row() == model.rowCount(moved.parent()) - 1, place.constData());

    session.history().undo();
    model.refreshPartial();
    QCOMPARE(session.shape(), shape);
}

void TreeDropRulesTest::readsTheLevelFromTheMouse()
{
    QCOMPARE(treeDropX(0), 41);
    QCOMPARE(treeDropX(3), 101);
    QCOMPARE(treeDropDepthAt(40.9), -1);
    QCOMPARE(treeDropDepthAt(41), 0);
    QCOMPARE(treeDropDepthAt(60.9), 0);
    QCOMPARE(treeDropDepthAt(61), 1);
}

QTEST_MAIN(TreeDropRulesTest)
#include "tst_TreeDropRules.moc"
