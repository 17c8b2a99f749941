#include "TreeListTest.h"

#include <QSignalSpy>

class TreeListDragTest : public TreeListTest
{
    Q_OBJECT

private Q_SLOTS:
    void drags_data();
    void drags();
    void opensAFolderUnderTheDrag();
    void escapeEndsTheDrag();
    void dragsNothingThatMayNot();
    void keepsThePlaceAmongAThousandItems();
};

void TreeListDragTest::drags_data()
{
    QTest::addColumn<QList<int>>("selection");
    QTest::addColumn<int>("dragged");
    QTest::addColumn<int>("target");
    QTest::addColumn<bool>("upperHalf");
    QTest::addColumn<int>("x");
    QTest::addColumn<QString>("expected"); // the folders 2 and 4 are open

    const auto row = [](const char *name, const QList<int> &selection, int dragged, int target, bool upperHalf, int x,
                        const char *expected) {
        QTest::newRow(name) << selection << dragged << target << upperHalf << x << QString::fromLatin1(expected);
    };
    row("one row down", {}, 1, 8, true, 50, "2[3 4[5 6] 7] 1 8[] 9");
    row("to a folder's end, on its level", {}, 9, 7, false, 50, "1 2[3 4[5 6] 7] 9 8[]");
    row("into an empty folder", {}, 1, 8, false, 150, "2[3 4[5 6] 7] 8[1] 9");
    row("several rows, in tree order", { 9, 3, 5 }, 9, 1, true, 150, "3 5 9 1 2[4[6] 7] 8[]");
    row("a row that stands in a selected folder", { 5, 4, 9 }, 9, 1, true, 150, "4[5 6] 9 1 2[3 7] 8[]");
    row("where it stands", {}, 3, 2, false, 150, "");
    row("a folder into itself", {}, 2, 5, true, 150, "");
}

void TreeListDragTest::drags()
{
    QFETCH(QList<int>, selection);
    QFETCH(int, dragged);
    QFETCH(int, target);
    QFETCH(bool, upperHalf);
    QFETCH(int, x);
    QFETCH(QString, expected);

    TreeListFixture f(kDocument);
    QVERIFY(f.isReady());
    QVERIFY(f.open(2));
    QVERIFY(f.open(4));
    for (int i = 0; i < selection.size(); ++i)
        f.click(selection.at(i), i == 0 ? Qt::NoModifier : Qt::ControlModifier);
    QSignalSpy moves(f.tree, SIGNAL(treeItemMoved()));

    f.drag(dragged, f.at(target, x, upperHalf ? -7 : 7));
    QCOMPARE(f.marker()->isVisible(), !expected.isEmpty());
    QCOMPARE(f.row(dragged)->opacity(), 0.5);
    const QString selected = f.selected();
    f.drop();
    QVERIFY(!f.marker()->isVisible());
    QTRY_VERIFY(f.row(dragged));
    QCOMPARE(f.row(dragged)->opacity(), 1.0);
    QCOMPARE(f.session.shape(), expected.isEmpty() ? kDocument : expected);
    QCOMPARE(moves.count(), expected.isEmpty() ? 0 : 1);
    if (expected.isEmpty())
        return;

    QTRY_VERIFY(f.itemId() >= 0);
    QCOMPARE(f.selected(), selected);
    f.undo();
    QCOMPARE(f.session.shape(), kDocument);
    QVERIFY(!f.session.history().canUndo());
}

void TreeListDragTest::opensAFolderUnderTheDrag()
{
    TreeListFixture f(kDocument);
    QVERIFY(f.isReady());
    f.drag(9, f.at(2, 150, 2));
    QVERIFY(!f.row(3));
    QTRY_VERIFY(f.row(3));
    // The drop goes above the row that has come to stand there, without another move of the mouse.
    QVERIFY(f.marker()->isVisible());
    f.drop();
    QCOMPARE(f.session.shape(), QStringLiteral("1 2[9 3 4[5 6] 7] 8[]"));
    QTRY_COMPARE(f.itemId(), 9);
}

void TreeListDragTest::escapeEndsTheDrag()
{
    TreeListFixture f(kDocument);
    QVERIFY(f.isReady());
    // So does a change of the rows. The other keys, and what the host asks for, wait.
    for (const bool byKey : { true, false }) {
        f.drag(1, f.at(8, 150, 7));
        QVERIFY(f.marker()->isVisible());
        f.key(Qt::Key_Down);
        f.focusOn(9);
        QTest::qWait(120);
        QCOMPARE(f.selected(), QStringLiteral("1"));
        QVERIFY(f.marker()->isVisible());
        if (byKey)
            f.key(Qt::Key_Escape);
        else
            QMetaObject::invokeMethod(f.tree, "refreshPartial");
        QVERIFY(!f.marker()->isVisible());
        QTRY_VERIFY(f.row(1));
        QCOMPARE(f.row(1)->opacity(), 1.0);
        f.moveTo(f.at(9, 150, -7));
        QVERIFY(!f.marker()->isVisible());
        f.drop();
        QCOMPARE(f.session.shape(), kDocument);
        QVERIFY(!f.session.history().canUndo());
    }
    f.drag(1, f.at(9, 50, -7));
    f.drop();
    QCOMPARE(f.session.shape(), QStringLiteral("2[3 4[5 6] 7] 8[] 1 9"));
}

void TreeListDragTest::dragsNothingThatMayNot()
{
    TreeListFixture f(kDocument);
    QVERIFY(f.isReady());
    f.drag(-1, f.at(8, 150, 7));
    f.drop();
    f.drag(1, f.at(8, 150, 7));
    f.moveTo(QPoint(150, -40));
    QVERIFY(!f.marker()->isVisible());
    f.drop();
    f.tree->setProperty("dragAndDropEnabled", false);
    f.drag(1, f.at(8, 150, -7));
    QVERIFY(!f.marker()->isVisible());
    f.drop();
    QCOMPARE(f.session.shape(), kDocument);
}

void TreeListDragTest::keepsThePlaceAmongAThousandItems()
{
    TreeListFixture f(longDocument(1000));
    QVERIFY(f.isReady());
    f.focusOn(500);
    QTRY_COMPARE(f.itemId(), 500);
    QTRY_VERIFY(f.visible().endsWith(QStringLiteral(" 500")));
    f.drag(490, f.at(495, 150, 7));
    f.drop();
    QCOMPARE(f.session.data().mRoot.mChildren.at(494).mId, 490);
    QVERIFY(f.visible().contains(QStringLiteral(" 495 490 496")));
    const QString moved = f.visible();
    QTRY_COMPARE(f.itemId(), 490);
    QTest::qWait(50);
    QCOMPARE(f.visible(), moved);

    // At the lower and upper edge the rows go by, and with the wheel, also far from the dragged row.
    const auto shows = [&f](int id) { return f.visible().split(QLatin1Char(' ')).contains(QString::number(id)); };
    const auto isInside = [&f] {
        const qreal bar = f.marker()->mapToItem(f.tree, QPointF(0, 4)).y();
        return f.marker()->isVisible() && bar >= 24 && bar + 3 <= f.tree->height();
    };
    f.drag(490, QPoint(150, 388));
    QTRY_VERIFY(shows(520));
    QVERIFY(isInside());
    f.moveTo(QPoint(150, 200));
    const QString held = f.visible();
    QTest::qWait(100);
    QCOMPARE(f.visible(), held);
    f.wheel(QPoint(150, 200), -10 * 120);
    QVERIFY(f.visible() != held);
    QTRY_VERIFY(isInside());
    f.wheel(QPoint(150, 200), 10 * 120);
    QTRY_COMPARE(f.visible(), held);
    f.moveTo(f.at(510, 150, 7));
    QVERIFY(isInside());
    f.drop();
    QCOMPARE(f.session.data().mRoot.mChildren.at(509).mId, 490);
    QVERIFY(f.visible().contains(QStringLiteral(" 510 490 511")));
    QTRY_COMPARE(f.itemId(), 490);
    f.drag(490, QPoint(150, 27));
    QTRY_VERIFY(shows(480));
    QVERIFY(isInside());
    f.key(Qt::Key_Escape);
    f.drop();
    QCOMPARE(f.session.data().mRoot.mChildren.at(509).mId, 490);
}

int main(int argc, char **argv)
{
    return runTreeListTest<TreeListDragTest>(argc, argv);
}

#include "tst_TreeListDrag.moc"
