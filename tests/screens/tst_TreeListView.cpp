#include "AuthoringTest.h"

/// The tree of items by mouse and keys: selection, folders, names and the place of the view.
class tst_TreeListView : public AuthoringTest
{
    Q_OBJECT

private Q_SLOTS:
    void selectsByMouse();
    void goesByKeys();
    void goesOnAfterADelete();
    void opensAndCloses();
    void renames();
    void goesToAnItemInClosedFolders();
    void showsAnotherDocument();
    void keepsItsPlaceAmongAThousandItems();
};

void tst_TreeListView::selectsByMouse()
{
    load(kShape);
    QCOMPARE(selected(), QStringLiteral("1"));
    click(8);
    QCOMPARE(selected(), QStringLiteral("8"));
    QCOMPARE(currentId(), 8);
    QVERIFY(row(8)->hasActiveFocus());
    click(9, Qt::ControlModifier);
    QCOMPARE(selected(), QStringLiteral("8 9"));
    // What is left after a row was taken out is the selected row.
    click(8, Qt::ControlModifier);
    QCOMPARE(selected(), QStringLiteral("9"));
    QCOMPARE(currentId(), 9);

    click(9);
    click(2, Qt::ShiftModifier);
    QCOMPARE(selected(), QStringLiteral("2 8 9"));
    chooseAt(at(8), "Copy");
    QCOMPARE(selected(), QStringLiteral("2 8 9"));
    chooseAt(at(1), "Copy");
    QCOMPARE(selected(), QStringLiteral("1"));
    QCOMPARE(currentId(), 1);

    // At the root row and below the rows there is nothing to select, and nothing to copy.
    const QPoint below = at(9, 100, 60);
    for (const QPoint &place : { at(-1), below }) {
        click(8);
        chooseAt(place, "Copy");
        QCOMPARE(selected(), QString());
    }
    click(8);
    item("condition")->forceActiveFocus();
    QTest::mouseClick(mWindow, Qt::LeftButton, Qt::NoModifier, below);
    QCOMPARE(selected(), QString());
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    QCOMPARE(selected(), QStringLiteral("1"));
}

void tst_TreeListView::goesByKeys()
{
    // Without a click before them.
    load(kShape);
    press(Qt::Key_Down);
    QCOMPARE(selected(), QStringLiteral("2"));
    QCOMPARE(currentId(), 2);
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(selected(), QStringLiteral("2 8 9"));
    settle();
    press(Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(selected(), QStringLiteral("2 8"));
    press(Qt::Key_Down);
    QTRY_COMPARE(selected(), QStringLiteral("9"));
    press(QKeySequence::SelectAll);
    QCOMPARE(selected(), QStringLiteral("1 2 8 9"));
    press(Qt::Key_Home);
    press(Qt::Key_Down);
    QCOMPARE(selected(), QStringLiteral("1"));
    QTRY_COMPARE(currentId(), 1);
}

// The keys go on at the place of what was deleted, and at once.
void tst_TreeListView::goesOnAfterADelete()
{
    load(kShape);
    click(1);
    click(2, Qt::ControlModifier);
    press(Qt::Key_Delete);
    QTRY_COMPARE(currentId(), 8);
    QCOMPARE(selected(), QStringLiteral("8"));
    undo();
    QTRY_COMPARE(shape(), kShape);
    click(8);
    click(1);
    press(Qt::Key_Delete);
    press(Qt::Key_Down);
    QCOMPARE(selected(), QStringLiteral("8"));
    settle();
    QCOMPARE(selected(), QStringLiteral("8"));
    // The second click is about to open the name.
    click(9);
    click(9);
    press(Qt::Key_Delete);
    QTRY_COMPARE(currentId(), 8);
    settle();
    QCOMPARE(shape(), QStringLiteral("2[3 4[5 6] 7] 8[]"));
}

void tst_TreeListView::opensAndCloses()
{
    load(kShape);
    QTest::mouseDClick(mWindow, Qt::LeftButton, Qt::NoModifier, at(2));
    QTRY_VERIFY(row(3));
    click(9);
    click(2);
    press(Qt::Key_Minus);
    QVERIFY(!row(3));
    press(Qt::Key_Minus);
    press(Qt::Key_Plus);
    QTRY_VERIFY(row(3));
    press(Qt::Key_Right);
    QCOMPARE(selected(), QStringLiteral("3"));
    press(Qt::Key_Left);
    QCOMPARE(selected(), QStringLiteral("2"));
    press(Qt::Key_Left);
    QVERIFY(!row(3));
    press(Qt::Key_Right);
    QTRY_COMPARE(shownIds(), QStringLiteral("-1 1 2 3 4 7 8 9"));
    // Nothing of it opened a name for editing.
    settle();
    QVERIFY(!renameField(2)->isVisible());
}

void tst_TreeListView::renames()
{
    load(kShape);
    rename(9, QStringLiteral("Say +1"));
    QCOMPARE(record(9)->mName, QStringLiteral("Say +1"));
    QVERIFY(!renameField(9)->isVisible());
    QVERIFY(row(9)->hasActiveFocus());
    press(Qt::Key_F2);
    type(QStringLiteral("gone"));
    press(Qt::Key_Escape);
    QCOMPARE(record(9)->mName, QStringLiteral("Say +1"));
    QVERIFY(row(9)->hasActiveFocus());
    // Leaving the field is a rename too, and a second click on the row opens it.
    click(9);
    QTRY_VERIFY(renameField(9)->isVisible());
    press(Qt::Key_End);
    type(QStringLiteral("!"));
    item("condition")->forceActiveFocus();
    QCOMPARE(record(9)->mName, QStringLiteral("Say +1!"));
    QVERIFY(item("condition")->hasActiveFocus());
    // The same text again is no rename.
    rename(9, QString());
    QCOMPARE(shownRows().last(), QStringLiteral(" 9 Say +1!"));
    undo();
    undo();
    QTRY_COMPARE(shownRows().last(), QStringLiteral(" 9 name9"));
}

void tst_TreeListView::goesToAnItemInClosedFolders()
{
    load(kShape);
    item("condition")->forceActiveFocus();
    select(6);
    QCOMPARE(selected(), QStringLiteral("6"));
    QTRY_COMPARE(shownIds(), QStringLiteral("-1 1 2 3 4 5 6 7 8 9"));
    QVERIFY(item("condition")->hasActiveFocus());
}

void tst_TreeListView::showsAnotherDocument()
{
    load(kShape);
    QVERIFY(open(2));
    click(7);
    load(QStringLiteral("21 22[23]"));
    QTRY_COMPARE(currentId(), 21);
    QTRY_COMPARE(shownIds(), QStringLiteral("-1 21 22"));
    load(QString());
    QTRY_COMPARE(shownIds(), QStringLiteral("-1"));
    QCOMPARE(currentId(), -1);
}

void tst_TreeListView::keepsItsPlaceAmongAThousandItems()
{
    const auto selectRows = [this](const QList<int> &ids) {
        QMetaObject::invokeMethod(tree(), "setSelectedIdList", Q_ARG(QVariant, QVariant::fromValue(ids)));
        QTRY_COMPARE(currentId(), ids.first());
    };
    load(longShape(1000));
    selectInTree(1000);
    QVERIFY(row(1000) && row(1000)->hasActiveFocus());
    QVERIFY(shownIds().endsWith(QStringLiteral(" 1000")));
    // The keys go by pages, and the row that they come to is in view.
    select(500);
    press(Qt::Key_End);
    QTRY_VERIFY(shownIds().endsWith(QStringLiteral(" 1000")));
    press(Qt::Key_PageUp, Qt::ShiftModifier);
    press(Qt::Key_PageUp, Qt::ShiftModifier);
    const int page = selected().split(QLatin1Char(' ')).size() / 2;
    QVERIFY(qAbs(page - tree()->height() / 24) < 4);
    settle();
    QVERIFY(shownIds().contains(QString::number(1000 - 2 * page)));
    // All rows that come in at once are in view.
    selectRows({ 100, 101, 102, 103, 104 });
    QTRY_VERIFY(shownIds().contains(QStringLiteral(" 100 101 102 103 104")));
    select(450);
    selectRows({ 510, 511, 512, 513 });
    QTRY_VERIFY(shownIds().contains(QStringLiteral(" 510 511 512 513")));

    // A refresh leaves the view where it is, in every frame.
    select(1000);
    select(500);
    QStringList frames = { shownIds() };
    const auto watch = connect(mWindow, &QQuickWindow::frameSwapped, this, [&] { frames.append(shownIds()); });
    QMetaObject::invokeMethod(tree(), "refreshPartial");
    QTRY_VERIFY(frames.size() > 2);
    disconnect(watch);
    frames.removeDuplicates();
    QCOMPARE(frames.size(), 1);
    QCOMPARE(selected(), QStringLiteral("500"));
}

int main(int argc, char *argv[])
{
    return AuthoringTest::run<tst_TreeListView>(argc, argv);
}

#include "tst_TreeListView.moc"
