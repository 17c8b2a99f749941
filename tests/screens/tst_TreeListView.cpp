#include "TreeListTest.h"

class TreeListViewTest : public TreeListTest
{
    Q_OBJECT

private Q_SLOTS:
    void selects();
    void goesByKeys();
    void opensAndCloses();
    void renames();
    void goesToAnItemInClosedFolders();
    void survivesAnotherDocument();
    void keepsItsPlaceAmongAThousandItems();
};

void TreeListViewTest::selects()
{
    TreeListFixture f(kDocument);
    QVERIFY(f.isReady());
    QCOMPARE(f.selected(), QStringLiteral("1"));

    f.click(8);
    QCOMPARE(f.selected(), QStringLiteral("8"));
    QCOMPARE(f.itemId(), 8);
    QVERIFY(f.row(8)->hasActiveFocus());

    f.click(9, Qt::ControlModifier);
    QCOMPARE(f.selected(), QStringLiteral("8 9"));
    // What is left after a row was taken out is the selected row.
    f.click(8, Qt::ControlModifier);
    QCOMPARE(f.selected(), QStringLiteral("9"));
    QCOMPARE(f.itemId(), 9);

    f.click(9);
    f.click(2, Qt::ShiftModifier);
    // The rows of the closed folders are in the range too.
    QCOMPARE(f.selection->getSelectedIdList().size(), 8);
    QCOMPARE(f.selected(), QStringLiteral("2 8 9"));
    f.click(8, Qt::NoModifier, Qt::RightButton);
    QCOMPARE(f.selected(), QStringLiteral("2 8 9"));
    QTRY_COMPARE(f.window->property("menus").toInt(), 1);
    f.click(1, Qt::NoModifier, Qt::RightButton);
    QCOMPARE(f.selected(), QStringLiteral("1"));
    QCOMPARE(f.itemId(), 1);
    QTRY_COMPARE(f.window->property("menus").toInt(), 2);
    f.click(-1, Qt::NoModifier, Qt::RightButton);
    QCOMPARE(f.selected(), QString());
    QCOMPARE(f.itemId(), -1);
    QTRY_COMPARE(f.window->property("menus").toInt(), 3);

    // Below the rows there is nothing to select.
    const QPoint below(150, 300);
    f.click(8);
    f.child("other")->forceActiveFocus();
    QTest::mouseClick(f.window, Qt::LeftButton, Qt::NoModifier, below);
    QCOMPARE(f.selected(), QString());
    QCOMPARE(f.itemId(), -1);
    f.click(8);
    QTest::mouseClick(f.window, Qt::RightButton, Qt::NoModifier, below);
    QCOMPARE(f.selected(), QString());
    QTRY_COMPARE(f.window->property("menus").toInt(), 4);
    f.key(Qt::Key_Down);
    f.key(Qt::Key_Down);
    QCOMPARE(f.selected(), QStringLiteral("1"));

    // The arrow keys take the selection with them.
    f.click(8);
    f.key(Qt::Key_Down);
    QTRY_COMPARE(f.itemId(), 9);
    QCOMPARE(f.selected(), QStringLiteral("9"));
}

void TreeListViewTest::goesByKeys()
{
    TreeListFixture f(kDocument);
    QVERIFY(f.isReady());
    // Without a click before them.
    f.key(Qt::Key_Down);
    QCOMPARE(f.selected(), QStringLiteral("2"));
    QCOMPARE(f.itemId(), 2);
    f.key(Qt::Key_F2);
    QVERIFY(f.renameField(2)->isVisible());
    f.key(Qt::Key_Escape);

    f.key(Qt::Key_Down, Qt::ShiftModifier);
    f.key(Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(f.selected(), QStringLiteral("2 8 9"));
    QTest::qWait(50);
    f.key(Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(f.selected(), QStringLiteral("2 8"));
    f.key(Qt::Key_Down);
    QTRY_COMPARE(f.selected(), QStringLiteral("9"));
    f.key(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(f.selection->getSelectedCount(), 9);
    QCOMPARE(f.selected(), QStringLiteral("1 2 8 9"));
    f.key(Qt::Key_Home);
    f.key(Qt::Key_Down);
    QCOMPARE(f.selected(), QStringLiteral("1"));
    QTRY_COMPARE(f.itemId(), 1);

    // The keys go on at the place of what was deleted, and at once.
    const auto deleteRows = [&f](const QList<int> &idList) {
        f.click(idList.first());
        f.session.sequence(QStringLiteral("delete"), [&] {
            QMetaObject::invokeMethod(f.tree, "deleteIdList", Q_ARG(QVariant, QVariant::fromValue(idList)));
        });
        QCOMPARE(f.itemId(), -1);
    };
    deleteRows({ 1, 2 });
    QTRY_COMPARE(f.itemId(), 8);
    QCOMPARE(f.selected(), QStringLiteral("8"));
    f.undo();
    deleteRows({ 1 });
    f.key(Qt::Key_Down);
    QCOMPARE(f.selected(), QStringLiteral("8"));
    QTest::qWait(150);
    QCOMPARE(f.selected(), QStringLiteral("8"));
    deleteRows({ 9 });
    QTRY_COMPARE(f.itemId(), 8);
}

void TreeListViewTest::opensAndCloses()
{
    TreeListFixture f(kDocument);
    QVERIFY(f.isReady());
    QTest::mouseDClick(f.window, Qt::LeftButton, Qt::NoModifier, f.at(2));
    QTRY_VERIFY(f.row(3));

    f.click(9);
    f.click(2);
    f.key(Qt::Key_Minus);
    QVERIFY(!f.row(3));
    f.key(Qt::Key_Minus);
    f.key(Qt::Key_Plus);
    QTRY_VERIFY(f.row(3));
    f.key(Qt::Key_Right);
    QCOMPARE(f.selected(), QStringLiteral("3"));
    f.key(Qt::Key_Left);
    QCOMPARE(f.selected(), QStringLiteral("2"));
    f.key(Qt::Key_Left);
    QVERIFY(!f.row(3));
    f.key(Qt::Key_Right);
    QTRY_VERIFY(f.row(3));
    QTRY_COMPARE(f.visible(), QStringLiteral("-1 1 2 3 4 7 8 9"));
    // Nothing of it opened a name for editing.
    QTest::qWait(600);
    QVERIFY(!f.renameField(2)->isVisible());
}

void TreeListViewTest::renames()
{
    TreeListFixture f(kDocument);
    QVERIFY(f.isReady());
    f.click(9);
    f.key(Qt::Key_F2);
    QVERIFY(f.renameField(9)->isVisible());
    f.type(QStringLiteral("Say +1"));
    f.key(Qt::Key_Return);
    QCOMPARE(f.session.record(9)->mName, QStringLiteral("Say +1"));
    QVERIFY(!f.renameField(9)->isVisible());
    QVERIFY(f.row(9)->hasActiveFocus());

    f.key(Qt::Key_F2);
    f.type(QStringLiteral("gone"));
    f.key(Qt::Key_Escape);
    QCOMPARE(f.session.record(9)->mName, QStringLiteral("Say +1"));
    QVERIFY(f.row(9)->hasActiveFocus());
    // The same text again is no rename.
    f.key(Qt::Key_F2);
    f.key(Qt::Key_Return);
    QCOMPARE(f.window->property("renames").toInt(), 1);

    // Leaving the field is a rename too.
    f.key(Qt::Key_F2);
    f.key(Qt::Key_End);
    f.type(QStringLiteral("!"));
    f.child("other")->forceActiveFocus();
    QCOMPARE(f.session.record(9)->mName, QStringLiteral("Say +1!"));
    QVERIFY(f.child("other")->hasActiveFocus());

    f.undo();
    f.undo();
    QCOMPARE(f.session.record(9)->mName, QStringLiteral("name9"));
}

void TreeListViewTest::goesToAnItemInClosedFolders()
{
    TreeListFixture f(kDocument);
    QVERIFY(f.isReady());
    f.child("other")->forceActiveFocus();
    f.focusOn(6);
    QTRY_COMPARE(f.itemId(), 6);
    QCOMPARE(f.selected(), QStringLiteral("6"));
    QTRY_COMPARE(f.visible(), QStringLiteral("-1 1 2 3 4 5 6 7 8 9"));
    QVERIFY(f.child("other")->hasActiveFocus());
}

void TreeListViewTest::survivesAnotherDocument()
{
    TreeListFixture f(kDocument);
    QVERIFY(f.isReady());
    QVERIFY(f.open(2));
    f.click(7);
    f.session.history().clear();
    f.session.load(QStringLiteral("21 22[23]"));
    f.model->refresh();
    QTRY_COMPARE(f.itemId(), 21);
    QTRY_COMPARE(f.visible(), QStringLiteral("-1 21 22"));
    f.session.load(QString());
    f.model->refresh();
    QTRY_COMPARE(f.visible(), QStringLiteral("-1"));
    QCOMPARE(f.itemId(), -1);
}

void TreeListViewTest::keepsItsPlaceAmongAThousandItems()
{
    TreeListFixture f(longDocument(1000));
    QVERIFY(f.isReady());

    f.tree->setProperty("autoActiveFocusOneShot", true);
    f.focusOn(1000);
    QTRY_COMPARE(f.itemId(), 1000);
    QTRY_VERIFY(f.row(1000) && f.row(1000)->hasActiveFocus());
    QVERIFY(f.visible().endsWith(QStringLiteral(" 1000")));

    f.focusOn(500);
    QTRY_COMPARE(f.itemId(), 500);

    // The keys go by pages, and the row that they come to is in view.
    f.key(Qt::Key_End);
    QTRY_VERIFY(f.visible().endsWith(QStringLiteral(" 1000")));
    f.key(Qt::Key_PageUp, Qt::ShiftModifier);
    f.key(Qt::Key_PageUp, Qt::ShiftModifier);
    const int page = f.selection->getSelectedCount() / 2;
    QVERIFY(page > 10 && page < 20);
    QTRY_VERIFY(f.visible().contains(QString::number(1000 - 2 * page)));
    QTest::qWait(50);
    QVERIFY(f.visible().contains(QString::number(1000 - 2 * page)));

    // All rows that come in at once are in view.
    QMetaObject::invokeMethod(f.tree, "setSelectedIdList",
                              Q_ARG(QVariant, QVariant::fromValue(QList<int>{ 100, 101, 102, 103, 104 })));
    QTRY_COMPARE(f.itemId(), 100);
    QTRY_VERIFY(f.visible().contains(QStringLiteral(" 100 101 102 103 104")));
    f.focusOn(450);
    QTRY_COMPARE(f.itemId(), 450);
    QMetaObject::invokeMethod(f.tree, "setSelectedIdList",
                              Q_ARG(QVariant, QVariant::fromValue(QList<int>{ 510, 511, 512, 513 })));
    QTRY_COMPARE(f.itemId(), 510);
    QTRY_VERIFY(f.visible().contains(QStringLiteral(" 510 511 512 513")));

    f.focusOn(1000);
    QTRY_COMPARE(f.itemId(), 1000);
    f.focusOn(500);
    QTRY_COMPARE(f.itemId(), 500);
    QTest::qWait(50);
    const QString visible = f.visible();

    // A refresh leaves the view where it is, in every frame.
    QStringList frames;
    connect(f.window, &QQuickWindow::frameSwapped, this, [&] { frames.append(f.visible()); });
    QMetaObject::invokeMethod(f.tree, "refreshPartial");
    QTRY_VERIFY(frames.size() > 1);
    disconnect(f.window, &QQuickWindow::frameSwapped, this, nullptr);
    frames.removeDuplicates();
    QCOMPARE(frames, QStringList(visible));
    QCOMPARE(f.selected(), QStringLiteral("500"));
}

int main(int argc, char **argv)
{
    return runTreeListTest<TreeListViewTest>(argc, argv);
}

#include "tst_TreeListView.moc"
