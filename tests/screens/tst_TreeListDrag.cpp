#include "AuthoringTest.h"

#include "Tutorial/ProcessGlobals.h"
#include "Tutorial/TutorialManager.h"
#include "UndoRedo/UndoRedo.h"

/// Rows dragged by the mouse.
class tst_TreeListDrag : public AuthoringTest
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

void tst_TreeListDrag::drags_data()
{
    QTest::addColumn<QList<int>>("selection");
    QTest::addColumn<int>("dragged");
    QTest::addColumn<int>("target");
    QTest::addColumn<int>("dy");
    QTest::addColumn<int>("x");
    QTest::addColumn<QString>("expected"); // the folders 2 and 4 are open

    const auto line = [](const char *name, const QList<int> &selection, int dragged, int target, int dy, int x,
                         const char *expected) {
        QTest::newRow(name) << selection << dragged << target << dy << x << QString::fromLatin1(expected);
    };
    line("one row down", {}, 1, 8, -7, 50, "2[3 4[5 6] 7] 1 8[] 9");
    line("to a folder's end, on its level", {}, 9, 7, 7, 50, "1 2[3 4[5 6] 7] 9 8[]");
    line("into an empty folder", {}, 1, 8, 7, 150, "2[3 4[5 6] 7] 8[1] 9");
    line("several rows, in tree order", { 9, 3, 5 }, 9, 1, -7, 150, "3 5 9 1 2[4[6] 7] 8[]");
    line("a row that stands in a selected folder", { 5, 4, 9 }, 9, 1, -7, 150, "4[5 6] 9 1 2[3 7] 8[]");
    line("where it stands", {}, 3, 2, 7, 150, "");
    line("a folder into itself", {}, 2, 5, -7, 150, "");
}

void tst_TreeListDrag::drags()
{
    QFETCH(QList<int>, selection);
    QFETCH(int, dragged);
    QFETCH(int, target);
    QFETCH(int, dy);
    QFETCH(int, x);
    QFETCH(QString, expected);

    load(kShape);
    QVERIFY(open(2));
    QVERIFY(open(4));
    for (int i = 0; i < selection.size(); ++i)
        click(selection.at(i), i == 0 ? Qt::NoModifier : Qt::ControlModifier);
    drag(dragged, at(target, x, dy));
    const bool moves = !expected.isEmpty();
    QCOMPARE(marker()->isVisible(), moves);
    QCOMPARE(row(dragged)->opacity(), 0.5);
    const QString before = selected();
    drop();
    QVERIFY(!marker()->isVisible());
    QTRY_VERIFY(row(dragged));
    QCOMPARE(row(dragged)->opacity(), 1.0);
    QCOMPARE(shape(), moves ? expected : kShape);
    if (!moves)
        return;
    settle();
    QVERIFY(currentId() >= 0);
    QCOMPARE(selected(), before);
    undo();
    QCOMPARE(shape(), kShape);
    QVERIFY(!UndoRedo::instance()->canUndo());
}

void tst_TreeListDrag::opensAFolderUnderTheDrag()
{
    load(kShape);
    drag(9, at(2, 150, 2));
    QVERIFY(!row(3));
    QTRY_VERIFY(row(3));
    // The drop goes above the row that has come to stand there, without another move of the mouse.
    QVERIFY(marker()->isVisible());
    drop();
    QCOMPARE(shape(), QStringLiteral("1 2[9 3 4[5 6] 7] 8[]"));
    QTRY_COMPARE(currentId(), 9);
}

void tst_TreeListDrag::escapeEndsTheDrag()
{
    load(kShape);
    // So does a change of the rows. The other keys, and what the host asks for, wait.
    for (const bool byKey : { true, false }) {
        drag(1, at(8, 150, 7));
        QVERIFY(marker()->isVisible());
        press(Qt::Key_Down);
        Q_EMIT managerInstance->actionIdChanged(9);
        QCOMPARE(selected(), QStringLiteral("1"));
        QVERIFY(marker()->isVisible());
        if (byKey)
            press(Qt::Key_Escape);
        else
            QMetaObject::invokeMethod(tree(), "refreshPartial");
        QVERIFY(!marker()->isVisible());
        QTRY_VERIFY(row(1));
        QCOMPARE(row(1)->opacity(), 1.0);
        settle();
        QCOMPARE(selected(), QStringLiteral("1"));
        moveTo(at(9, 150, -7));
        QVERIFY(!marker()->isVisible());
        drop();
        QCOMPARE(shape(), kShape);
        QVERIFY(!UndoRedo::instance()->canUndo());
    }
    drag(1, at(9, 50, -7));
    drop();
    QCOMPARE(shape(), QStringLiteral("2[3 4[5 6] 7] 8[] 1 9"));
}

void tst_TreeListDrag::dragsNothingThatMayNot()
{
    load(kShape);
    drag(-1, at(8, 150, 7));
    drop();
    drag(1, at(8, 150, 7));
    moveTo(QPoint(150, -40));
    QVERIFY(!marker()->isVisible());
    drop();
    tree()->setProperty("dragAndDropEnabled", false);
    drag(1, at(8, 150, -7));
    QVERIFY(!marker()->isVisible());
    drop();
    tree()->setProperty("dragAndDropEnabled", true);
    QCOMPARE(shape(), kShape);
}

void tst_TreeListDrag::keepsThePlaceAmongAThousandItems()
{
    const auto shows = [this](int id) { return row(id) && shownIds().contains(QStringLiteral(" %1 ").arg(id)); };
    const auto isInside = [this] {
        const qreal bar = marker()->mapToItem(tree(), QPointF(0, 4)).y();
        return marker()->isVisible() && bar >= 24 && bar + 3 <= tree()->height();
    };
    const int bottom = tree()->mapToScene(QPointF(0, tree()->height())).toPoint().y() - 2;
    const int top = tree()->mapToScene(QPointF()).toPoint().y() + 27;
    const QPoint middle(150, (top + bottom) / 2);
    load(longShape(1000));
    select(500);
    QCOMPARE(shownIds().section(QLatin1Char(' '), -1), QStringLiteral("500"));
    drag(490, at(495, 150, 7));
    drop();
    QVERIFY(shape().contains(QStringLiteral(" 495 490 496 ")));
    QVERIFY(shownIds().contains(QStringLiteral(" 495 490 496 ")));
    const QString moved = shownIds();
    QTRY_COMPARE(currentId(), 490);
    settle();
    QCOMPARE(shownIds(), moved);

    // At the lower and upper edge the rows go by, and with the wheel, also far from the dragged row.
    drag(490, QPoint(150, bottom));
    QTRY_VERIFY(shows(520));
    QVERIFY(isInside());
    moveTo(middle);
    settle();
    const QString held = shownIds();
    const auto wheel = [&](int angle) {
        QWheelEvent event(middle, mWindow->mapToGlobal(middle), QPoint(), QPoint(0, angle), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(mWindow, &event);
    };
    wheel(-10 * 120);
    QVERIFY(shownIds() != held);
    QTRY_VERIFY(isInside());
    wheel(10 * 120);
    QTRY_COMPARE(shownIds(), held);
    moveTo(at(510, 150, 7));
    QVERIFY(isInside());
    drop();
    QVERIFY(shownIds().contains(QStringLiteral(" 510 490 511 ")));
    const QString after = shape();
    QVERIFY(after.contains(QStringLiteral(" 510 490 511 ")));
    QTRY_COMPARE(currentId(), 490);
    drag(490, QPoint(150, top));
    QTRY_VERIFY(shows(480));
    QVERIFY(isInside());
    press(Qt::Key_Escape);
    drop();
    QCOMPARE(shape(), after);
}

int main(int argc, char *argv[])
{
    return AuthoringTest::run<tst_TreeListDrag>(argc, argv);
}

#include "tst_TreeListDrag.moc"
