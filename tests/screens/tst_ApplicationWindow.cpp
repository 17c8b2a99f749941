#include "MainWindowFixture.h"

#include "Tutorial/ProcessGlobals.h"
#include "Tutorial/TutorialManager.h"
#include "TutorialEditor/Manager.h"
#include "UndoRedo/UndoRedo.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QProcess>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtTest>

#include <algorithm>
#include <cstdlib>

namespace
{
const QString kEndsByItself = QStringLiteral("--ends-by-itself");
const QString kTutorialFolder = QStringLiteral("tutorial-win/qml/Tutorial/");
const QString kTutorial = kTutorialFolder + QStringLiteral("Sample.js");
const QString kTranslation = QStringLiteral("tutorial-win/translations/ja_JP.ts");
constexpr int kStillThere = 99;

std::unique_ptr<MainWindowFixture> fixture;

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Opens a menu by its mnemonic and chooses the entry that many keys below.
void chooseEntry(Qt::Key menu, int downs)
{
    const QWindowList before = QGuiApplication::allWindows();
    QTest::keyClick(fixture->window(), menu, Qt::AltModifier);
    QVERIFY(QTest::qWaitFor([&] { return QGuiApplication::allWindows().size() > before.size(); }));
    QVERIFY(QTest::qWaitForWindowExposed(QGuiApplication::allWindows().last()));
    for (int i = 0; i < downs; ++i)
        QTest::keyClick(fixture->window(), Qt::Key_Down);
    QTest::keyClick(fixture->window(), Qt::Key_Return);
}

QQuickWindow *saveCheckDialog()
{
    return MainWindowFixture::visibleWindow("SaveChangeDialog");
}
} // namespace

/// The application window with its menus and dialogs.
class tst_ApplicationWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { QVERIFY(fixture->activate()); }
    void cleanup();

    void saveCheck_data();
    void saveCheck();
    void questionHoldsTheKeyboard();
    void saveThatFails();
    void hostOpensATutorial();
    void saveOverSomeoneElsesChange();
    void saveThatDropsSomething();
    void confirmAnswersOnce();
    void openTutorial_data();
    void openTutorial();
    void licences();
    void eventDialogIsOpenedAgain();
    void endsByItself();

private:
    /// What scripts have added to the window's list of answers.
    QString answers() const { return fixture->evaluate(QStringLiteral("answers.join()")).toString(); }
    void loadTutorial();
};

void tst_ApplicationWindow::initTestCase()
{
    fixture = std::make_unique<MainWindowFixture>();
    QVERIFY(fixture->load());
    managerInstance->unload();
}

void tst_ApplicationWindow::cleanup()
{
    while (QWidget *dialog = MainWindowFixture::dialog())
        dialog->close();
    managerInstance->unload();
    managerInstance->setModified(false);
    fixture->evaluate(QStringLiteral("activeMenu = null; answers.length = 0"));
}

void tst_ApplicationWindow::loadTutorial()
{
    // Not as the program writes it, so that a save is seen.
    const QByteArray contents = readFile(QStringLiteral(":/qml/Tutorial/TutorialSideViewStep1.js")) + "\n";
    MainWindowFixture::writeFile(kTutorial, contents);
    QCOMPARE(managerInstance->loadTutorial(QFileInfo(kTutorial).absoluteFilePath()), QString());
}

void tst_ApplicationWindow::saveCheck_data()
{
    QTest::addColumn<bool>("byMenu"); // else by the window's own close button
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("closed");
    QTest::addColumn<bool>("saved");
    QTest::newRow("Yes") << true << "yes" << true << true;
    QTest::newRow("No") << true << "no" << true << false;
    QTest::newRow("its own close button") << true << QString() << false << false;
    QTest::newRow("window, Cancel") << false << "cancel" << false << false;
}

void tst_ApplicationWindow::saveCheck()
{
    QFETCH(bool, byMenu);
    QFETCH(QString, button);
    QFETCH(bool, closed);
    QFETCH(bool, saved);
    loadTutorial();
    managerInstance->setModified(true);
    const QByteArray before = readFile(kTutorial);

    if (byMenu)
        chooseEntry(Qt::Key_F, 2);
    else
        fixture->window()->close();
    QTRY_VERIFY(saveCheckDialog() != nullptr);
    QVERIFY(QTest::qWaitForWindowExposed(saveCheckDialog()));
    QQuickItem *content = saveCheckDialog()->contentItem();
    QVERIFY(MainWindowFixture::find(content, QStringLiteral("\"Sample\"\nSave change?")) != nullptr);
    if (button.isEmpty())
        saveCheckDialog()->close();
    else
        MainWindowFixture::click(MainWindowFixture::find(content, button));
    QTRY_VERIFY(saveCheckDialog() == nullptr);
    QVERIFY(fixture->window()->isVisible());
    QCOMPARE(fixture->window()->title(), closed ? QStringLiteral("Tutorial editor") : QStringLiteral("*Sample"));
    QCOMPARE(readFile(kTutorial) != before, saved);
    QVERIFY(MainWindowFixture::messageBox() == nullptr);
}

// Also when the window below has been given the focus, none of its menus answers.
void tst_ApplicationWindow::questionHoldsTheKeyboard()
{
    const auto press = [](Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QGuiApplication::focusWindow(), key, modifiers);
    };
    for (bool cancelled : { true, false }) {
        loadTutorial();
        managerInstance->setModified(true);
        const QByteArray before = "changed by another";
        MainWindowFixture::writeFile(kTutorial, before);
        chooseEntry(Qt::Key_F, 2);
        QTRY_VERIFY(saveCheckDialog() != nullptr);
        QVERIFY(QTest::qWaitForWindowActive(saveCheckDialog()));
        const auto focused = [] { return saveCheckDialog()->activeFocusItem()->objectName(); };
        QCOMPARE(focused(), QStringLiteral("yes"));

        const int windows = QGuiApplication::allWindows().size();
        bool pressed = false;
        QObject context;
        connect(qGuiApp, &QGuiApplication::focusWindowChanged, &context, [&](QWindow *window) {
            if (window != fixture->window() || pressed)
                return;
            pressed = true;
            press(Qt::Key_S, Qt::ControlModifier);
            press(Qt::Key_O, Qt::ControlModifier);
            press(Qt::Key_F, Qt::AltModifier);
        });
        fixture->window()->requestActivate();
        QTRY_VERIFY(pressed);
        QTRY_COMPARE(QGuiApplication::focusWindow(), saveCheckDialog());
        QCOMPARE(QGuiApplication::allWindows().size(), windows);
        QCOMPARE(readFile(kTutorial), before);

        press(Qt::Key_Tab);
        QCOMPARE(focused(), QStringLiteral("no"));
        press(cancelled ? Qt::Key_Escape : Qt::Key_Return);
        QTRY_VERIFY(saveCheckDialog() == nullptr);
        QCOMPARE(managerInstance->isModified(), cancelled);
        QCOMPARE(readFile(kTutorial), before);
        QVERIFY(fixture->activate());
    }
}

// A failed save is told, and what asked for the check stops.
void tst_ApplicationWindow::saveThatFails()
{
    loadTutorial();
    managerInstance->setModified(true);
    const QByteArray before = readFile(kTranslation);
    QVERIFY(QFile::remove(kTranslation));
    QVERIFY(QDir().mkpath(kTranslation));
    fixture->evaluate(QStringLiteral("checkSaveTutorial(function(result) { answers.push(result); })"));
    QTRY_VERIFY(saveCheckDialog() != nullptr);
    QVERIFY(QTest::qWaitForWindowExposed(saveCheckDialog()));
    MainWindowFixture::click(MainWindowFixture::find(saveCheckDialog()->contentItem(), QStringLiteral("yes")));
    const QString text = MainWindowFixture::answer(QMessageBox::Ok);
    QVERIFY2(text.startsWith(QStringLiteral("Failed to save project.\n")), qPrintable(text));
    QCOMPARE(answers(), QStringLiteral("-1"));

    QVERIFY(fixture->activate());
    QTest::keyClick(fixture->window(), Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(MainWindowFixture::answer(QMessageBox::Ok), QStringLiteral("Failed to save translation."));
    QVERIFY(managerInstance->isModified());
    QDir().rmdir(kTranslation);
    MainWindowFixture::writeFile(kTranslation, before);
}

// What the host editor wants waits for the writer's answer, as at "Open".
void tst_ApplicationWindow::hostOpensATutorial()
{
    loadTutorial();
    UndoRedo::instance()->beginSequence(QString());
    UndoRedo::addFolderCommand(-1, -1, QString(), QVariantMap());
    UndoRedo::instance()->endSequence();
    QSignalSpy sent(&fixture->host(), &ProgramLink::received);
    const auto started = [&] {
        return std::any_of(sent.cbegin(), sent.cend(), [](const QVariantList &arguments) {
            return arguments.first().toStringList().first() == HostMessages::ToHost::kStart;
        });
    };
    for (const char *button : { "cancel", "no" }) {
        QCOMPARE(fixture->window()->title(), QStringLiteral("*Sample"));
        // The one that was wanted last.
        for (const char *name : { "TutorialSideViewStep1", "TutorialTopViewStep1" })
            fixture->host().send(HostMessages::FromHost::kTutorial, QLatin1String(name));
        QTRY_VERIFY(saveCheckDialog() != nullptr);
        QVERIFY(QTest::qWaitForWindowExposed(saveCheckDialog()));
        QVERIFY(!started());
        MainWindowFixture::click(MainWindowFixture::find(saveCheckDialog()->contentItem(), QLatin1String(button)));
        QTRY_VERIFY(saveCheckDialog() == nullptr);
        QVERIFY(fixture->activate());
    }
    QTRY_COMPARE(fixture->window()->title(), QStringLiteral("TutorialTopViewStep1"));
    QTRY_VERIFY(started());
    QVERIFY(!UndoRedo::instance()->canUndo());

    // Without changes it is opened at once, and what the writer has on disk goes before a resource.
    fixture->host().send(HostMessages::FromHost::kTutorial, QStringLiteral("Sample"));
    QTRY_COMPARE(fixture->window()->title(), QStringLiteral("Sample"));
    QVERIFY(saveCheckDialog() == nullptr);
    QCOMPARE(managerInstance->save(), QString());
}

void tst_ApplicationWindow::saveOverSomeoneElsesChange()
{
    const QByteArray theirs = "[{\"id\":5}]";
    for (const QMessageBox::StandardButton button : { QMessageBox::Cancel, QMessageBox::No, QMessageBox::Yes }) {
        loadTutorial();
        managerInstance->setModified(true);
        MainWindowFixture::writeFile(kTutorial, theirs);
        QVERIFY(fixture->activate());
        QTest::keyClick(fixture->window(), Qt::Key_S, Qt::ControlModifier);
        QVERIFY(MainWindowFixture::answer(button).startsWith(QStringLiteral("The file was changed by someone else")));
        QCOMPARE(readFile(kTutorial) == theirs, button != QMessageBox::Yes);
        QCOMPARE(fixture->window()->title().startsWith(QLatin1Char('*')), button == QMessageBox::Cancel);
        const bool reloaded = TutorialEditor::Manager::instance()->mData.getData(5) != nullptr;
        QCOMPARE(reloaded, button == QMessageBox::No);
    }
    // What was saved here is no one else's change.
    QVERIFY(!managerInstance->isChangedOnDisk());
}

// The writer is told of it at the load, and asked at the save.
void tst_ApplicationWindow::saveThatDropsSomething()
{
    const QByteArray contents = "[{\"id\":1,\"name\":\"a\",\"folder\":true,\"children\":[{\"id\":2},3]}]";
    MainWindowFixture::writeFile(kTutorial, contents);
    const QString part = QStringLiteral("\na (#1), with all in it: a (#1) / entry 2 can't be read");
    QCOMPARE(managerInstance->loadTutorial(QFileInfo(kTutorial).absoluteFilePath()), QString());
    QVERIFY(MainWindowFixture::answer(QMessageBox::Ok).contains(part));
    for (const QMessageBox::StandardButton button : { QMessageBox::No, QMessageBox::Yes }) {
        QVERIFY(fixture->activate());
        // Told once only.
        fixture->evaluate(QStringLiteral("reloadTutorial()"));
        QVERIFY(MainWindowFixture::messageBox() == nullptr);
        QTest::keyClick(fixture->window(), Qt::Key_S, Qt::ControlModifier);
        QVERIFY(MainWindowFixture::answer(button).contains(part));
        QCOMPARE(readFile(kTutorial) == contents, button == QMessageBox::No);
    }
    QVERIFY(fixture->activate());
    QTest::keyClick(fixture->window(), Qt::Key_S, Qt::ControlModifier);
    QVERIFY(MainWindowFixture::messageBox() == nullptr);
}

void tst_ApplicationWindow::confirmAnswersOnce()
{
    const QString script = QStringLiteral("confirm(\"Own\", \"%1\", function(result) { answers.push(result); }, %2)");
    fixture->evaluate(script.arg(QStringLiteral("Really?"), QStringLiteral("null")));
    QCOMPARE(MainWindowFixture::answer(QMessageBox::No), QStringLiteral("Really?"));
    QCOMPARE(answers(), QStringLiteral("0"));
    // A dialog in a container of its own goes with the answer.
    fixture->evaluate(script.arg(QStringLiteral("In there?"), QStringLiteral("contentItem")));
    QCOMPARE(MainWindowFixture::answer(QMessageBox::Yes), QStringLiteral("In there?"));
    QCOMPARE(answers(), QStringLiteral("0,1"));
    QTRY_VERIFY(!fixture->window()->contentItem()->findChild<QObject *>(QStringLiteral("ConfirmDialog")));
}

void tst_ApplicationWindow::openTutorial_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<QString>("title");
    QTest::addColumn<bool>("opened");
    const QString name = QStringLiteral("Sample.js");
    const QByteArray tutorial = readFile(QStringLiteral(":/qml/Tutorial/TutorialSideViewStep1.js"));
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
    MainWindowFixture::writeFile(kTutorial, contents);
    QTest::keyClick(fixture->window(), Qt::Key_O, Qt::ControlModifier);
    const auto dialog = [] { return qobject_cast<QFileDialog *>(MainWindowFixture::dialog()); };
    QTRY_VERIFY(dialog() != nullptr);
    QVERIFY(QTest::qWaitForWindowActive(dialog()));
    auto *name = dialog()->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    QVERIFY(name != nullptr);
    name->clear();
    QTest::keyClicks(name, typed);
    QTest::keyClick(name, Qt::Key_Return);
    QTRY_COMPARE(fixture->window()->title(), title);
    if (opened) {
        QVERIFY(MainWindowFixture::messageBox() == nullptr);
        QVERIFY(fixture->activate());
        QTest::keyClick(fixture->window(), Qt::Key_S, Qt::ControlModifier);
        QTRY_VERIFY(readFile(kTutorialFolder + title + QStringLiteral(".js")).startsWith("var scenario = [\n"));
        QVERIFY(MainWindowFixture::messageBox() == nullptr);
    } else {
        const QString text = MainWindowFixture::answer(QMessageBox::Ok);
        QVERIFY2(text.startsWith(QStringLiteral("Failed to open new project\n")), qPrintable(text));
    }
}

void tst_ApplicationWindow::licences()
{
    chooseEntry(Qt::Key_H, 2);
    const auto window = [] { return MainWindowFixture::visibleWindow("LicenseWindow"); };
    QTRY_VERIFY(window() != nullptr);
    QVERIFY(QTest::qWaitForWindowActive(window()));
    // A window of any other kind can fall behind the one that it blocks.
    QCOMPARE(window()->type(), Qt::Dialog);
    QCOMPARE(window()->transientParent(), fixture->window());
    const QString text =
        MainWindowFixture::find(window()->contentItem(), QStringLiteral("licences"))->property("text").toString();
    for (const char *line : { " LICENSE\n                       Version 3, 29 June 2007\n\n Copyright (C) 2007",
                              "2007 Free Software Foundation, Inc. <https://fsf.org/>\n Everyone is permitted to copy "
                              "and distribute verbatim copies of this license document,",
                              "\n\n   b) under the GNU GPL, with none of the additional permissions of this License ",
                              "are met:\n  * Redistributions of source code must retain the above copyright notice, " })
        QVERIFY2(text.contains(QLatin1String(line)), line);
    QTest::keyClick(window(), Qt::Key_Return);
    QTRY_VERIFY(window() == nullptr);
}

void tst_ApplicationWindow::eventDialogIsOpenedAgain()
{
    const auto window = [] { return MainWindowFixture::visibleWindow("TutorialEventDialog"); };
    QTRY_VERIFY(window() != nullptr);
    const auto shown = [&] {
        chooseEntry(Qt::Key_H, 3);
        return QTest::qWaitFor([&] { return window() && window()->isActive(); }) && fixture->activate();
    };
    window()->close();
    QTRY_VERIFY(window() == nullptr);
    QVERIFY(shown());
    // One that is minimized is brought back, one that is maximized stays so.
    window()->showMinimized();
    QVERIFY(shown());
    QVERIFY(window()->windowState() != Qt::WindowMinimized);
    window()->showMaximized();
    QVERIFY(shown());
    QCOMPARE(window()->windowState(), Qt::WindowMaximized);
}

// In a process of its own, which the closing of the window ends.
void tst_ApplicationWindow::endsByItself()
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(QCoreApplication::applicationFilePath(), { kEndsByItself });
    QVERIFY(process.waitForFinished(60000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
}

namespace
{
// The window's own end of the process must not pass for a passed test.
void failOnEnd()
{
    std::_Exit(1);
}

int endByItself()
{
    fixture = std::make_unique<MainWindowFixture>();
    if (!fixture->load())
        return 1;
    managerInstance->unload();
    fixture->window()->close();
    QTest::qWait(3000);
    return kStillThere;
}
} // namespace

int main(int argc, char *argv[])
{
    const auto application = MainWindowFixture::makeApplication(argv[0]);
    if (argc > 1 && QString::fromLocal8Bit(argv[1]) == kEndsByItself)
        return endByItself();
    closeLogFileHook = failOnEnd;
    tst_ApplicationWindow test;
    const int result = QTest::qExec(&test, argc, argv);
    fixture.reset();
    return result;
}

#include "tst_ApplicationWindow.moc"
