#include "AuthoringTest.h"

#include "quick/DocumentFollower.h"
#include "quick/TutorialItemListModel.h"
#include "support/ModelRows.h"
#include "TutorialEditor/Manager.h"
#include "UndoRedo/UndoRedo.h"

/// What the tree shows after each edit of it, and after the steps back and forth in the history.
class tst_UndoOnScreen : public AuthoringTest
{
    Q_OBJECT

private Q_SLOTS:
    void stepsAreShown_data();
    void stepsAreShown();

private:
    static void addRows(const TreeItem<TutorialItemData> &folder, int depth, QStringList &rows);
    void checkShown(int id, qreal place);
};

void tst_UndoOnScreen::stepsAreShown_data()
{
    QTest::addColumn<std::function<void()>>("edit");
    QTest::addColumn<int>("editedId");
    QTest::addColumn<int>("undoneId");
    QTest::addColumn<int>("redoneId");
    const auto line = [](const char *name, int edited, int undone, int redone, const std::function<void()> &edit) {
        QTest::newRow(name) << edit << edited << undone << redone;
    };
    // The folder 63 is open and holds 64 and 65; the row 62 is selected.
    line("add", 96, 62, 96, [this] { click(item("addItemButton")); });
    line("add folder by menu", 96, 62, 96, [this] { choose("&Edit", "&Add folder"); });
    line("paste", 96, 95, 96, [this] {
        press(QKeySequence::Copy);
        press(QKeySequence::Paste);
    });
    line("delete, with the name about to open", 63, 62, 63, [this] {
        click(62);
        press(Qt::Key_Delete);
    });
    line("cut an open folder by its menu", 66, 63, 66, [this] { chooseAt(at(63), "Cut"); });
    line("move", 62, 62, 62, [this] {
        drag(62, at(58, 100, -7));
        drop();
    });
    line("move an open folder", 63, 63, 63, [this] {
        drag(63, at(60, 50, -7));
        drop();
    });
    line("rename", 62, 62, 62, [this] { rename(62, QStringLiteral("new")); });
    line("prohibit a folder", 62, 62, 62, [this] {
        auto *toggle = row(63)->findChild<QQuickItem *>(QStringLiteral("prohibition"));
        click(toggle->childItems().value(0));
    });
    // The writer has gone on to another row.
    line("field", 64, 62, 62, [this] {
        typeInto("condition", QStringLiteral("wait"));
        select(64);
    });
}

void tst_UndoOnScreen::stepsAreShown()
{
    QFETCH(std::function<void()>, edit);
    QFETCH(int, editedId);
    QFETCH(int, undoneId);
    QFETCH(int, redoneId);

    load(longShape(95).replace(QStringLiteral(" 63 64 65 "), QStringLiteral(" 63[64 65] ")));
    QVERIFY(open(63));
    selectInTree(62);
    auto *follower = screen()->findChild<DocumentFollower *>();
    QVERIFY(follower);
    QSignalSpy changes(follower, &DocumentFollower::rowsAboutToChange);
    QSignalSpy passes(follower, &DocumentFollower::followed);
    edit();
    QTRY_VERIFY(UndoRedo::instance()->canUndo());
    QTRY_COMPARE(currentId(), editedId);
    settle();
    const qreal place = scrolled();
    QVERIFY(place > 0);
    checkShown(editedId, place);
    click(item("undoButton"));
    checkShown(undoneId, place);
    click(item("redoButton"));
    checkShown(redoneId, place);
    click(item("undoButton"));
    checkShown(undoneId, place);
    // The edit and the three steps, once each.
    QVERIFY(changes.count() <= 4);
    QCOMPARE(passes.count(), 4);
}

/// The row of the id is selected and in view, the tree has not been scrolled, but for a row that is
/// gone from its end, and what the rows show is what stands in the document.
void tst_UndoOnScreen::checkShown(int id, qreal place)
{
    QTRY_COMPARE(currentId(), id);
    settle();
    QCOMPARE(currentId(), id);
    QCOMPARE(selected(), QString::number(id));
    QVERIFY(row(id));
    QVERIFY2(scrolled() == place || scrolled() == place - 24, QByteArray::number(scrolled()).constData());
    const auto *model = screen()->property("model").value<TutorialItemListModel *>();
    QCOMPARE(ModelRows::difference(*model), QString());

    QStringList rows;
    addRows(TutorialEditor::Manager::instance()->mData.mRoot, 1, rows);
    const QStringList inView = shownRows();
    // The root row stands above them.
    const QChar newLine = QLatin1Char('\n');
    QCOMPARE(inView.join(newLine), rows.mid(int(scrolled() / 24) - 1, inView.size()).join(newLine));
}

void tst_UndoOnScreen::addRows(const TreeItem<TutorialItemData> &folder, int depth, QStringList &rows)
{
    for (const auto &child : folder.mChildren) {
        rows.append(QString(depth, QLatin1Char(' ')) + QString::number(child.mId)
                    + QLatin1String(child.mFolder ? "/ " : " ") + record(child.mId)->mName
                    + QLatin1String(ModelRows::isProhibited(child) ? "!" : ""));
        addRows(child, depth + 1, rows);
    }
}

int main(int argc, char *argv[])
{
    return AuthoringTest::run<tst_UndoOnScreen>(argc, argv);
}

#include "tst_UndoOnScreen.moc"
