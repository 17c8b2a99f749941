#include "TreeListTest.h"

#include <QSignalSpy>

class TreeListViewTest : public TreeListTest
{
    Q_OBJECT

private Q_SLOTS:
    void selects();
    void selectsBesideTheItemAndByArrowKeys();
    void opensAndCloses();
    void renames();
    void renamesBySlowSecondClick();
    void togglesTheProhibition();
    void addsAndDeletes();
    void goesToAnItemInClosedFolders();
    void survivesAnotherDocument();
    void keepsItsPlaceAmongAThousandItems();
};

void TreeListViewTest::selects()
{
    TreeListFixture f(kDocument);
    QVERIFY(f.isReady());
    QCOMPARE(f.selected(), QStringLiteral("1"));
    QSignalSpy clicks(f.tree, SIGNAL(itemClicked(int)));

    f.click(8);
    QCOMPARE(f.selected(), QStringLiteral("8"));
    QCOMPARE(f.itemId(), 8);
    QCOMPARE(f.tree->property("isFolder").toBool(), true);
    QVERIFY(f.row(8)->hasActiveFocus());
    QCOMPARE(clicks.takeFirst().value(0).toInt(), 8);

    f.click(9, Qt::ControlModifier);
    QCOMPARE(f.selected(), QStringLiteral("8 9"));
    // What is left after a row was taken out is the selected row.
    f.click(8, Qt::ControlModifier);
    QCOMPARE(f.selected(), QStringLiteral("9"));
    QCOMPARE(f.itemId(), 9);
    QCOMPARE(f.tree->property("isFolder").toBool(), false);

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

    // The menu bar stands for the menu of the tree while that has the focus.
    QVERIFY(f.window->property("menuIsActive").toBool());
    f.child("other")->forceActiveFocus();
    QVERIFY(!f.window->property("menuIsActive").toBool());
}

void TreeListViewTest::selectsBesideTheItemAndByArrowKeys()
{
    TreeListFixture f(kDocument);
    QVERIFY(f.isReady());
    QTest::mouseClick(f.window, Qt::LeftButton, Qt::NoModifier, f.at(9, 10));
    QCOMPARE(f.selected(), QStringLiteral("9"));
    QCOMPARE(f.itemId(), 9);
    // The mark of the branch.
    QTest::mouseClick(f.window, Qt::LeftButton, Qt::NoModifier, f.at(2, 30));
    QTRY_VERIFY(f.row(3));
    QCOMPARE(f.itemId(), 2);

    f.click(8);
    f.key(Qt::Key_Down);
    QTRY_COMPARE(f.itemId(), 9);
    f.key(Qt::Key_Up);
    f.key(Qt::Key_Up);
    QTRY_COMPARE(f.itemId(), 7);
}

void TreeListViewTest::opensAndCloses()
{
    TreeListFixture f(kDocument);
    QVERIFY(f.isReady());
    QSignalSpy doubleClicks(f.tree, SIGNAL(itemDoubleClicked(int)));
    QTest::mouseDClick(f.window, Qt::LeftButton, Qt::NoModifier, f.at(2));
    QTRY_VERIFY(f.row(3));
    QCOMPARE(doubleClicks.takeFirst().value(0).toInt(), 2);

    f.click(9);
    f.click(2);
    f.key(Qt::Key_Minus);
    QVERIFY(!f.row(3));
    f.key(Qt::Key_Minus);
    f.key(Qt::Key_Plus);
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
    QCOMPARE(f.name(9), QStringLiteral("Say +1"));
    QVERIFY(!f.renameField(9)->isVisible());
    QVERIFY(f.row(9)->hasActiveFocus());

    f.key(Qt::Key_F2);
    f.type(QStringLiteral("gone"));
    f.key(Qt::Key_Escape);
    QCOMPARE(f.name(9), QStringLiteral("Say +1"));
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
    QCOMPARE(f.name(9), QStringLiteral("Say +1!"));
    QVERIFY(f.child("other")->hasActiveFocus());

    f.undo();
    f.undo();
    QCOMPARE(f.name(9), QStringLiteral("name9"));
    // The root has no name of its own.
    f.click(-1);
    f.key(Qt::Key_F2);
    QVERIFY(!f.renameField(-1)->isVisible());
}

void TreeListViewTest::renamesBySlowSecondClick()
{
    TreeListFixture f(kDocument);
    QVERIFY(f.isReady());
    f.click(9);
    f.click(9);
    QVERIFY(!f.renameField(9)->isVisible());
    QTRY_VERIFY(f.renameField(9)->isVisible());
    f.type(QStringLiteral("slow"));
    // A click on another row takes the text over.
    f.click(8);
    QCOMPARE(f.name(9), QStringLiteral("slow"));
    QCOMPARE(f.itemId(), 8);
}

void TreeListViewTest::togglesTheProhibition()
{
    TreeListFixture f(kDocument);
    QVERIFY(f.isReady());
    QVERIFY(f.open(2));
    QSignalSpy updates(f.tree, SIGNAL(itemUpdated(int)));
    const auto click = [&f](int id) {
        const QQuickItem *toggle = f.toggle(id);
        const QPointF center = toggle->mapToScene(QPointF(toggle->width() / 2, toggle->height() / 2));
        QTest::mouseClick(f.window, Qt::LeftButton, Qt::NoModifier, center.toPoint());
    };
    const int selected = f.itemId();
    click(9);
    QVERIFY(f.prohibited(9));
    QCOMPARE(updates.takeFirst().value(0).toInt(), 9);
    QCOMPARE(f.itemId(), selected);
    click(2);
    QVERIFY(f.prohibited(5) && f.prohibited(4) && f.prohibited(2));
    // One of its items is let in again: the folder is not prohibited as a whole.
    click(7);
    QVERIFY(!f.prohibited(7) && f.prohibited(4) && !f.prohibited(2));
    f.undo();
    QVERIFY(f.prohibited(7) && f.prohibited(2));
    f.undo();
    QVERIFY(!f.prohibited(5) && !f.prohibited(2));
}

void TreeListViewTest::addsAndDeletes()
{
    TreeListFixture f(kDocument);
    QVERIFY(f.isReady());
    // Into a closed folder, which then shows it.
    const int id = f.call("addFolder", 2).toInt();
    QCOMPARE(f.session.shape(), QStringLiteral("1 2[3 4[5 6] 7 %1[]] 8[] 9").arg(id));
    QTRY_VERIFY(f.row(id) && f.row(id)->hasActiveFocus());
    QCOMPARE(f.selected(), QString::number(id));
    QCOMPARE(f.itemId(), id);

    QMetaObject::invokeMethod(f.window, "deleteIdList", Q_ARG(QVariant, (QVariantList{ 2, 9 })));
    QCOMPARE(f.session.shape(), QStringLiteral("1 8[]"));
    QTRY_COMPARE(f.visible(), QStringLiteral("-1 1 8"));
    QCOMPARE(f.itemId(), -1);
    f.undo();
    f.undo();
    QCOMPARE(f.session.shape(), kDocument);
    QTRY_COMPARE(f.visible(), QStringLiteral("-1 1 2 8 9"));
    f.call("setSelectedIdList", QVariantList{ 6, 9 });
    QTRY_VERIFY(f.row(6));
    QCOMPARE(f.selected(), QStringLiteral("6 9"));
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

    f.tree->setProperty("autoActiveFocusOneShot", true);
    f.focusOn(1);
    QTRY_VERIFY(f.row(1)->hasActiveFocus());
    QCOMPARE(f.tree->property("autoActiveFocusOneShot").toBool(), false);
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
    const int id = f.call("addFolder", -1).toInt();
    QTRY_COMPARE(f.itemId(), id);
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
    QTest::qWait(50);
    const QString visible = f.visible();
    QVERIFY(visible.contains(QStringLiteral(" 500")));

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
