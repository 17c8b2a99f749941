#include "AuthoringTest.h"

#include "support/FileBytes.h"
#include "Tutorial/ProcessGlobals.h"
#include "Tutorial/TutorialManager.h"
#include "TutorialEditor/Manager.h"
#include "UndoRedo/UndoRedo.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileDialog>
#include <QLineEdit>

#include <algorithm>

/// The application window with its menus and dialogs.
class tst_ApplicationWindow : public AuthoringTest
{
    Q_OBJECT

public Q_SLOTS:
    void openUrl(const QUrl &url) { mOpened = url; }

protected Q_SLOTS:
    void init();
    // The window then asks as it is closed.
    void cleanupTestCase() { loadModified(); }

private Q_SLOTS:
    void menus_data();
    void menus();
    void entriesOfNoScreen();
    void saveCheck_data();
    void saveCheck();
    void saveThatFails();
    void hostOpensATutorial();
    void saveOverSomeoneElsesChange();
    void saveThatDropsSomething();
    void messageBoxAnswersOnce();
    void openTutorial_data();
    void openTutorial();
    void licences();
    void eventDialogIsOpenedAgain();

private:
    QString answers() const { return evaluate(QStringLiteral("answers.join()")).toString(); }
    void loadModified();

    QUrl mOpened;
};

void tst_ApplicationWindow::init()
{
    AuthoringTest::init();
    QVERIFY(activate());
    evaluate(QStringLiteral("answers.length = 0"));
}

void tst_ApplicationWindow::loadModified()
{
    load(kShape);
    managerInstance->setModified(true);
    QCOMPARE(mWindow->title(), QStringLiteral("*Sample"));
}

namespace
{
// What an entry needs to be enabled.
enum Condition { Always, Loaded, TreeFocused, RowSelected, ItemsCopied, Edited, Undone };

struct Entry
{
    const char *text;
    QKeySequence shortcut;
    QList<Condition> needed;
};

// The entries of the menus in order, and of the tree's own menu.
QList<Entry> told()
{
    const QKeySequence none;
    return { { "&Open tutorial", QKeySequence::Open, { Always } },
             { "Close tutorial", QKeySequence::Close, { Loaded } },
             { "Save tutorial", QKeySequence::Save, { Loaded } },
             { "Open tutorial folder", none, { Always } },
             { "Exit", QKeySequence::Quit, { Always } },
             { "&Add folder", none, { TreeFocused } },
             { "Create &item", none, { TreeFocused } },
             { "Copy", QKeySequence::Copy, { TreeFocused, RowSelected } },
             { "Cut", QKeySequence::Cut, { TreeFocused, RowSelected } },
             { "Paste", QKeySequence::Paste, { TreeFocused, ItemsCopied } },
             { "Delete", QKeySequence::Delete, { TreeFocused, RowSelected } },
             { "&Undo", QKeySequence::Undo, { Edited } },
             { "&Redo", QKeySequence::Redo, { Undone } },
             { "Start tutorial", QKeySequence::Refresh, { Loaded } },
             { "Start current", QKeySequence(Qt::Key_F6), { Loaded } },
             { "&Version", none, { Always } },
             { "&License", none, { Always } },
             { "Tutorial &event", none, { Always } },
             { "Add folder", none, { Always } },
             { "Add item", none, { Always } },
             { "Copy", none, { RowSelected } },
             { "Cut", none, { RowSelected } },
             { "Paste", none, { ItemsCopied } },
             { "Delete", none, { RowSelected } } };
}
} // namespace

Q_DECLARE_METATYPE(QList<Condition>)

void tst_ApplicationWindow::menus_data()
{
    QTest::addColumn<std::function<void()>>("state");
    QTest::addColumn<QList<Condition>>("met");
    const auto line = [](const char *name, const QList<Condition> &met, const std::function<void()> &state) {
        QTest::newRow(name) << state << (met + QList<Condition>{ Always });
    };
    const auto leaveTree = [this] { item("condition")->forceActiveFocus(); };
    const auto edit = [this] {
        press(Qt::Key_Delete);
        settle();
    };
    line("no tutorial", {}, [] { managerInstance->unload(); });
    line("a field has the focus", { Loaded, RowSelected }, leaveTree);
    line("a row is selected", { Loaded, TreeFocused, RowSelected }, [] {});
    line("no row is selected", { Loaded, TreeFocused }, [this] { click(-1); });
    line("row copied", { Loaded, TreeFocused, RowSelected, ItemsCopied }, [this] { press(QKeySequence::Copy); });
    line("edited", { Loaded, TreeFocused, RowSelected, Edited }, edit);
    line("edited and saved", { Loaded, TreeFocused, RowSelected, Edited }, [=] {
        edit();
        press(QKeySequence::Save);
    });
    line("undone", { Loaded, TreeFocused, RowSelected, Undone }, [=] {
        edit();
        undo();
    });
}

void tst_ApplicationWindow::menus()
{
    QFETCH(std::function<void()>, state);
    QFETCH(QList<Condition>, met);
    managerInstance->clearMimeData();
    load(kShape);
    selectInTree(9);
    state();
    settle();

    const auto line = [](const QString &text, const QString &shortcut, bool enabled) {
        return QStringLiteral("%1 [%2] %3").arg(text, shortcut, QLatin1String(enabled ? "on" : "off"));
    };
    QStringList expected;
    for (const Entry &entry : told()) {
        const bool enabled = std::all_of(entry.needed.cbegin(), entry.needed.cend(),
                                         [&](Condition condition) { return met.contains(condition); });
        expected.append(line(QLatin1String(entry.text), entry.shortcut.toString(), enabled));
    }
    QStringList shown;
    for (QObject *menu : AuthoringTest::menus()) {
        QQmlListReference entries(menu, "items");
        for (int i = 0; i < entries.count(); ++i) {
            const QObject *entry = entries.at(i);
            if (!entry->property("shortcut").isValid())
                continue; // a separator
            const QVariant shortcut = entry->property("shortcut");
            shown.append(
                line(entry->property("text").toString(), shortcut.toString(), entry->property("enabled").toBool()));
        }
    }
    QCOMPARE(shown, expected);
    QCOMPARE(item("undoButton")->isEnabled(), met.contains(Edited));
    QCOMPARE(item("redoButton")->isEnabled(), met.contains(Undone));
    QCOMPARE(item("saveButton")->isEnabled(), met.contains(Loaded));
}

void tst_ApplicationWindow::entriesOfNoScreen()
{
    load(kShape);
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "openUrl");
    choose("&File", "Open tutorial folder");
    QTRY_COMPARE(mOpened.toLocalFile(), QFileInfo(kTutorial).absolutePath());
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    choose("&Help", "&Version");
    QCOMPARE(answer(QMessageBox::Ok), QStringLiteral("Version:VERSION"));
}

void tst_ApplicationWindow::saveCheck_data()
{
    QTest::addColumn<std::function<void()>>("answered");
    QTest::addColumn<bool>("closed");
    QTest::addColumn<bool>("saved");
    const auto line = [](const char *name, bool closed, bool saved, const std::function<void()> &answered) {
        QTest::newRow(name) << answered << closed << saved;
    };
    const auto pressThere = [](Qt::Key key) { QTest::keyPress(saveQuestion(), key); };
    line("Yes", true, true, [] { QVERIFY(answerSaveQuestion("yes")); });
    line("No by keys", true, false, [=] {
        pressThere(Qt::Key_Tab);
        pressThere(Qt::Key_Return);
    });
    line("Cancel", false, false, [] { QVERIFY(answerSaveQuestion("cancel")); });
    line("Escape", false, false, [=] { pressThere(Qt::Key_Escape); });
    line("its own close button", false, false, [] { saveQuestion()->close(); });
}

void tst_ApplicationWindow::saveCheck()
{
    QFETCH(std::function<void()>, answered);
    QFETCH(bool, closed);
    QFETCH(bool, saved);
    loadModified();
    const QByteArray before = readAll(kTutorial);
    choose("&File", "Close tutorial");
    QTRY_VERIFY(saveQuestion());
    QVERIFY(QTest::qWaitForWindowActive(saveQuestion()));
    QVERIFY(find(saveQuestion()->contentItem(), QStringLiteral("\"Sample\"\nSave change?")));
    answered();
    QTRY_VERIFY(!saveQuestion());
    QVERIFY(mWindow->isVisible());
    QCOMPARE(mWindow->title(), closed ? QStringLiteral("Tutorial editor") : QStringLiteral("*Sample"));
    QCOMPARE(readAll(kTutorial) != before, saved);
    QVERIFY(!messageBox());
}

// A failed save is told, and what asked for the check stops.
void tst_ApplicationWindow::saveThatFails()
{
    // At the question and at the key.
    mWarnings.expect(QStringLiteral("Failed to open"), 2);
    mWarnings.expect(QStringLiteral("Failed to save"), 2);
    loadModified();
    const QByteArray before = readAll(kJapanese);
    QVERIFY(QFile::remove(kJapanese));
    QVERIFY(QDir().mkpath(kJapanese));
    choose("&File", "Close tutorial");
    QVERIFY(answerSaveQuestion("yes"));
    const QString text = answer(QMessageBox::Ok);
    QVERIFY2(text.startsWith(QStringLiteral("Failed to save project.\n")), qPrintable(text));
    QVERIFY(activate());
    press(QKeySequence::Save);
    QCOMPARE(answer(QMessageBox::Ok), QStringLiteral("Failed to save translation."));
    QCOMPARE(mWindow->title(), QStringLiteral("*Sample"));
    QDir().rmdir(kJapanese);
    writeAll(kJapanese, before);
}

// What the host editor wants waits for the writer's answer, as at "Open".
void tst_ApplicationWindow::hostOpensATutorial()
{
    load(kShape);
    click(item("addFolderButton"));
    QSignalSpy sent(&mHost, &ProgramLink::received);
    const auto started = [&] {
        return std::any_of(sent.cbegin(), sent.cend(), [](const QVariantList &arguments) {
            return arguments.first().toStringList().first() == HostMessages::ToHost::kStart;
        });
    };
    for (const char *button : { "cancel", "no" }) {
        QCOMPARE(mWindow->title(), QStringLiteral("*Sample"));
        // The one that was wanted last.
        for (const char *name : { "TutorialSideViewStep1", "TutorialTopViewStep1" })
            mHost.send(HostMessages::FromHost::kTutorial, QLatin1String(name));
        QTRY_VERIFY(saveQuestion());
        QVERIFY(!started());
        QVERIFY(answerSaveQuestion(button));
        QVERIFY(activate());
    }
    QTRY_COMPARE(mWindow->title(), QStringLiteral("TutorialTopViewStep1"));
    QTRY_VERIFY(started());
    QVERIFY(!UndoRedo::instance()->canUndo());

    // Without changes it is opened at once, and what the writer has on disk goes before a resource.
    mHost.send(HostMessages::FromHost::kTutorial, QStringLiteral("Sample"));
    QTRY_COMPARE(mWindow->title(), QStringLiteral("Sample"));
    QVERIFY(!saveQuestion());
    QCOMPARE(managerInstance->save(), QString());
}

void tst_ApplicationWindow::saveOverSomeoneElsesChange()
{
    const QByteArray theirs = "[{\"id\":55}]";
    for (const QMessageBox::StandardButton button : { QMessageBox::Cancel, QMessageBox::No, QMessageBox::Yes }) {
        loadModified();
        writeAll(kTutorial, theirs);
        press(QKeySequence::Save);
        QVERIFY(answer(button).startsWith(QStringLiteral("The file was changed by someone else")));
        QCOMPARE(readAll(kTutorial) == theirs, button != QMessageBox::Yes);
        QCOMPARE(mWindow->title().startsWith(QLatin1Char('*')), button == QMessageBox::Cancel);
        QCOMPARE(record(55) != nullptr, button == QMessageBox::No);
    }
    // What was saved here is no one else's change.
    QVERIFY(!managerInstance->isChangedOnDisk());
}

// The writer is told of it at the load, and asked at the save.
void tst_ApplicationWindow::saveThatDropsSomething()
{
    mWarnings.expect(QStringLiteral("[id] is applied for"), 3);
    const QByteArray contents = "[{\"id\":1,\"name\":\"a\",\"folder\":true,\"children\":[{\"id\":2},3]}]";
    writeAll(kTutorial, contents);
    const QString part = QStringLiteral("\na (#1), with all in it: a (#1) / entry 2 can't be read");
    QCOMPARE(managerInstance->loadTutorial(QFileInfo(kTutorial).absoluteFilePath()), QString());
    QVERIFY(answer(QMessageBox::Ok).contains(part));
    for (const QMessageBox::StandardButton button : { QMessageBox::No, QMessageBox::Yes }) {
        QVERIFY(activate());
        // Told once only.
        evaluate(QStringLiteral("reloadTutorial()"));
        QVERIFY(!messageBox());
        press(QKeySequence::Save);
        QVERIFY(answer(button).contains(part));
        QCOMPARE(readAll(kTutorial) == contents, button == QMessageBox::No);
    }
    QVERIFY(activate());
    press(QKeySequence::Save);
    QVERIFY(!messageBox());
}

void tst_ApplicationWindow::messageBoxAnswersOnce()
{
    const QString confirm = QStringLiteral("confirm(null, \"%1\", function(result) { answers.push(result); }, %2)");
    evaluate(confirm.arg(QStringLiteral("Really?"), QStringLiteral("null")));
    QCOMPARE(answer(QMessageBox::No), QStringLiteral("Really?"));
    QCOMPARE(answers(), QStringLiteral("0"));
    // A dialog in a container of its own goes with the answer.
    evaluate(confirm.arg(QStringLiteral("In there?"), QStringLiteral("contentItem")));
    QCOMPARE(answer(QMessageBox::Yes), QStringLiteral("In there?"));
    QCOMPARE(answers(), QStringLiteral("0,1"));
    QTRY_VERIFY(!mWindow->contentItem()->findChild<QObject *>(QStringLiteral("ConfirmDialog")));
    // A second one takes the place of the first.
    for (const char *text : { "first", "second" })
        evaluate(QStringLiteral("alert(\"%1\", function(result) { answers.push(\"%1\"); })").arg(QLatin1String(text)));
    QTRY_VERIFY(messageBox() && messageBox()->text() == QLatin1String("second"));
    QCOMPARE(answer(QMessageBox::Ok), QStringLiteral("second"));
    QCOMPARE(answers(), QStringLiteral("0,1,second"));
}

void tst_ApplicationWindow::openTutorial_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<QString>("title");
    QTest::addColumn<bool>("opened");
    const QString name = QStringLiteral("Sample.js");
    const QByteArray tutorial = readAll(QStringLiteral(":/qml/Tutorial/TutorialSideViewStep1.js"));
    QTest::newRow("one that can't be read") << name << QByteArray("var scenario = [{") << "Sample" << false;
    QTest::newRow("one that can") << name << tutorial << "Sample" << true;
    QTest::newRow("new name") << QStringLiteral("v1.0") << tutorial << "v1.0" << true;
}

void tst_ApplicationWindow::openTutorial()
{
    QFETCH(QString, typed);
    QFETCH(QByteArray, contents);
    QFETCH(QString, title);
    QFETCH(bool, opened);
    if (!opened)
        mWarnings.expect(QStringLiteral("Json parse error"));
    writeAll(kTutorial, contents);
    press(QKeySequence::Open);
    const auto fileDialog = [] { return qobject_cast<QFileDialog *>(dialog()); };
    QTRY_VERIFY(fileDialog());
    QVERIFY(QTest::qWaitForWindowActive(fileDialog()));
    auto *name = fileDialog()->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    QVERIFY(name);
    name->clear();
    QTest::keyClicks(name, typed);
    QTest::keyClick(name, Qt::Key_Return);
    QTRY_COMPARE(mWindow->title(), title);
    if (!opened) {
        const QString text = answer(QMessageBox::Ok);
        QVERIFY2(text.startsWith(QStringLiteral("Failed to open new project\n")), qPrintable(text));
        return;
    }
    QVERIFY(!messageBox());
    QVERIFY(activate());
    press(QKeySequence::Save);
    const QString saved = QStringLiteral("tutorial-win/qml/Tutorial/%1.js").arg(title);
    QTRY_VERIFY(readAll(saved).startsWith("var scenario = [\n"));
    QVERIFY(!messageBox());
}

void tst_ApplicationWindow::licences()
{
    choose("&Help", "&License");
    const auto window = [] { return visibleWindow("LicenseWindow"); };
    QTRY_VERIFY(window());
    QVERIFY(QTest::qWaitForWindowActive(window()));
    // A window of any other kind can fall behind the one that it blocks.
    QCOMPARE(window()->type(), Qt::Dialog);
    QCOMPARE(window()->transientParent(), mWindow);
    const QString text = find(window()->contentItem(), QStringLiteral("licences"))->property("text").toString();
    for (const char *part : { " LICENSE\n                       Version 3, 29 June 2007\n\n Copyright (C) 2007",
                              "2007 Free Software Foundation, Inc. <https://fsf.org/>\n Everyone is permitted to copy "
                              "and distribute verbatim copies of this license document,",
                              "\n\n   b) under the GNU GPL, with none of the additional permissions of this License ",
                              "are met:\n  * Redistributions of source code must retain the above copyright notice, " })
        QVERIFY2(text.contains(QLatin1String(part)), part);
    QTest::keyClick(window(), Qt::Key_Return);
    QTRY_VERIFY(!window());
}

void tst_ApplicationWindow::eventDialogIsOpenedAgain()
{
    const auto window = [] { return visibleWindow("TutorialEventDialog"); };
    QTRY_VERIFY(window());
    const auto shown = [&] {
        choose("&Help", "Tutorial &event");
        return QTest::qWaitFor([&] { return window() && window()->isActive(); }) && activate();
    };
    window()->close();
    QTRY_VERIFY(!window());
    QVERIFY(shown());
    // One that is minimized is brought back, one that is maximized stays so.
    window()->showMinimized();
    QVERIFY(shown());
    QTRY_VERIFY(window()->windowState() != Qt::WindowMinimized);
    window()->showMaximized();
    QVERIFY(shown());
    QCOMPARE(window()->windowState(), Qt::WindowMaximized);
}

int main(int argc, char *argv[])
{
    return AuthoringTest::run<tst_ApplicationWindow>(argc, argv);
}

#include "tst_ApplicationWindow.moc"
