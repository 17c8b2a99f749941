#include "AuthoringTest.h"

#include "UndoRedo/UndoRedo.h"

/// Rows dragged by the mouse.
class tst_TreeListDrag : public AuthoringTest
{
    Q_OBJECT

private Q_SLOTS:
    void drags()
    {
        load(kShape);
        QVERIFY(open(2));
        QVERIFY(open(4));
        click(5);
        click(4, Qt::ControlModifier);
        click(9, Qt::ControlModifier);
        const QString before = selected();
        // A folder does not go into itself.
        drag(4, at(6, 150, -7));
        QVERIFY(!marker()->isVisible());
        drop();
        QCOMPARE(shape(), kShape);
        drag(9, at(1, 150, -7));
        QVERIFY(marker()->isVisible());
        QCOMPARE(row(9)->opacity(), 0.5);
        drop();
        QVERIFY(!marker()->isVisible());
        QCOMPARE(shape(), QStringLiteral("4[5 6] 9 1 2[3 7] 8[]"));
        settle();
        QCOMPARE(row(9)->opacity(), 1.0);
        QCOMPARE(selected(), before);
        undo();
        QCOMPARE(shape(), kShape);
        QVERIFY(!UndoRedo::instance()->canUndo());
        // At the end of a folder the level is that of the mouse.
        QTRY_VERIFY(row(9));
        click(1);
        drag(9, at(7, 150, 7));
        drop();
        QCOMPARE(shape(), QStringLiteral("1 2[3 4[5 6] 7 9] 8[]"));
    }
    void opensAFolderUnderTheDrag()
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
    void escapeEndsTheDrag()
    {
        load(kShape);
        drag(-1, at(8, 150, 7));
        drop();
        drag(1, at(8, 150, 7));
        moveTo(QPoint(150, -40));
        QVERIFY(!marker()->isVisible());
        drop();
        QCOMPARE(shape(), kShape);
        // So does a change of the rows. The other keys, and what the host asks for, wait.
        for (const bool byKey : { true, false }) {
            drag(1, at(8, 150, 7));
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
        }
        drag(1, at(9, 50, -7));
        drop();
        QCOMPARE(shape(), QStringLiteral("2[3 4[5 6] 7] 8[] 1 9"));
    }
    void keepsThePlaceInALongTree()
    {
        const auto shows = [this](int id) { return shownIds().contains(QStringLiteral(" %1 ").arg(id)); };
        const auto isInside = [this] {
            const qreal bar = marker()->mapToItem(tree(), QPointF(0, 4)).y();
            return marker()->isVisible() && bar >= 24 && bar + 3 <= tree()->height();
        };
        const int bottom = tree()->mapToScene(QPointF(0, tree()->height())).toPoint().y() - 2;
        const int top = tree()->mapToScene(QPointF()).toPoint().y() + 27;
        load(longShape(300));
        select(150);
        // At the lower and upper edge the rows go by, also far from the dragged row.
        drag(140, QPoint(150, bottom));
        QTRY_VERIFY(shows(160));
        QVERIFY(isInside());
        // They stand still in the middle, wherever they have come to meanwhile.
        moveTo(QPoint(150, (top + bottom) / 2));
        const QStringList still = shownIds().split(QLatin1Char(' '));
        const int target = still.at(still.size() / 2).toInt();
        moveTo(at(target, 150, 7));
        QVERIFY(isInside());
        drop();
        const QString after = shape();
        const QString neighbours = QStringLiteral(" %1 140 %2 ").arg(target).arg(target + 1);
        QVERIFY(after.contains(neighbours));
        const QString moved = shownIds();
        QVERIFY(moved.contains(neighbours));
        QTRY_COMPARE(currentId(), 140);
        settle();
        QCOMPARE(shownIds(), moved);
        drag(140, QPoint(150, top));
        QTRY_VERIFY(shows(135));
        QVERIFY(isInside());
        press(Qt::Key_Escape);
        drop();
        QCOMPARE(shape(), after);
    }
};

AUTHORING_TEST_MAIN(tst_TreeListDrag)
#include "tst_TreeListDrag.moc"
