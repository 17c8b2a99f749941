#include "quick/TreeDropRules.h"
#include "quick/TutorialItemListModel.h"
#include "support/EditingSession.h"

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
    void decides();
    void landsWhereTheMarkerStands();

private:
    void checkDrop(EditingSession &session, Model &model, const QSet<int> &open, int dragged, int gap, int mouseDepth);

    int mAccepted = 0;
};

void TreeDropRulesTest::decides()
{
    // Gives "<whether before> <target>", or nothing. No row has the id -2: that is the end of the list.
    const auto drop = [](const char *tree, int dragged, int up, int low, int mouseDepth) {
        EditingSession session;
        session.load(QString::fromLatin1(tree));
        const Model model;
        const QVariantMap map = model.calcDrop({ dragged }, model.getModelIndexById(up), model.getModelIndexById(low),
                                               treeDropX(mouseDepth));
        const QString before = map.value(QStringLiteral("before")).toString();
        return QString(before + QLatin1Char(' ') + map.value(QStringLiteral("targetId")).toString()).trimmed();
    };
    QCOMPARE(drop("1 2 3", 2, 1, 2, 0), QString());
    QCOMPARE(drop("1[2 3] 4", 1, 3, 4, 1), QString());
    QCOMPARE(drop("1[2 3] 4", 3, 3, 4, 0), QStringLiteral("true 4"));
    QCOMPARE(drop("1[2 3] 4", 3, 3, 4, 1), QString());
    QCOMPARE(drop("1[2[3[4]]] 5", 5, 4, -2, 9), QStringLiteral("false 3"));
    QCOMPARE(drop("1[2[3[4]]] 5", 5, 4, -2, -3), QStringLiteral("false -1"));
    // Below the last folder, which is closed or empty.
    QCOMPARE(drop("1 2[3[]]", 1, 3, -2, 2), QStringLiteral("false 3"));
    QCOMPARE(drop("1 2[3[4]]", 3, 3, -2, 0), QStringLiteral("false -1"));
    QCOMPARE(drop("1[2[3[]]]", 2, 3, -2, 0), QStringLiteral("false -1"));
    QCOMPARE(drop("1[2[3[]]]", 2, 3, -2, 1), QString());
    QCOMPARE(drop("1[2[3[]]]", 1, 3, -2, 0), QString());
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

    const QByteArray place =
        QStringLiteral("%1: %2 below %3 at %4").arg(shape).arg(dragged).arg(idOf(up)).arg(mouseDepth).toUtf8();
    const QModelIndex moved = model.getModelIndexById(dragged);
    QVERIFY2(session.shape() != shape, place.constData());
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

QTEST_MAIN(TreeDropRulesTest)
#include "tst_TreeDropRules.moc"
