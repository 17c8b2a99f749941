#include "AuthoringTest.h"

#include "quick/WindowPlace.h"
#include "support/FaultyDisk.h"
#include "Tutorial/recovery/Recovery.h"
#include "UndoRedo/UndoRedo.h"

#include <QDesktopServices>
#include <QDirIterator>
#include <QFileDialog>
#include <QLineEdit>
#include <QScreen>

#include <cerrno>
#include <functional>

/// The application window with its menus and dialogs.
class tst_ApplicationWindow : public AuthoringTest
{
    Q_OBJECT

public Q_SLOTS:
    void openUrl(const QUrl &url) { mOpened = url; }

protected Q_SLOTS:
    // The window then asks as it is closed.
    void cleanupTestCase() { loadModified(); }

private Q_SLOTS:
    void menus();
    void entriesOfNoScreen();
    void saveCheck();
    void saveThatFails();
    void hostOpensATutorial();
    void hostWaitsForTheWriter();
    void hostReachesNothingElse();
    void saveOverSomeoneElsesChange();
    void saveThatDropsSomething();
    void openTutorial();
    void licences();
    void eventDialogIsOpenedAgain();
    void placesOnScreensOfNow();

private:
    void loadModified()
    {
        load(kShape);
        managerInstance->setModified(true);
        QCOMPARE(mWindow->title(), QStringLiteral("*Sample"));
    }

    QUrl mOpened;
};

void tst_ApplicationWindow::menus()
{
    // What is disabled in the menus, in that of the tree and below it.
    const auto disabled = [this] {
        QStringList texts;
        for (QObject *menu : AuthoringTest::menus()) {
            QQmlListReference entries(menu, "items");
            for (int i = 0; i < entries.count(); ++i) {
                // A separator has no text.
                const QVariant text = entries.at(i)->property("text");
                if (text.isValid() && !entries.at(i)->property("enabled").toBool())
                    texts.append(text.toString());
            }
        }
        for (const char *button : { "undoButton", "redoButton", "saveButton" }) {
            if (!item(button)->isEnabled())
                texts.append(QLatin1String(button));
        }
        return texts.join(QLatin1Char(' '));
    };
    // What acts on the selected rows.
    const QString moves = QStringLiteral("Delete Move up Move down Move into the folder Move out of the folder");
    const QString rows = moves + QLatin1String(" Prohibit or permit (Space)");
    managerInstance->clearMimeData();
    load(kShape);
    selectInTree(9);
    QCOMPARE(disabled(), QStringLiteral("Paste &Undo &Redo Paste undoButton redoButton"));
    click(-1);
    QCOMPARE(disabled(),
             QStringLiteral("Copy Cut Paste %1 &Undo &Redo Copy Cut Paste %1 undoButton redoButton").arg(moves));
    click(9);
    press(QKeySequence::Cut);
    settle();
    press(QKeySequence::Save);
    QCOMPARE(disabled(), QStringLiteral("&Redo redoButton"));
    undo();
    settle();
    QCOMPARE(disabled(), QStringLiteral("&Undo undoButton"));
    item("condition")->forceActiveFocus();
    QCOMPARE(disabled(), QStringLiteral("&Add folder Create &item Copy Cut Paste %1 &Undo undoButton").arg(rows));
    managerInstance->unload();
    QTRY_COMPARE(disabled(),
                 QStringLiteral("Close tutorial Save tutorial &Add folder Create &item Copy Cut Paste %1 &Undo &Redo "
                                "Start tutorial Start current Copy Cut %2 undoButton redoButton saveButton")
                     .arg(rows, moves));
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
    // A choice for the next start is told to somebody who may read no other language.
    const QQmlListReference help(AuthoringTest::menus().at(2), "items");
    const QQmlListReference entries(help.at(help.count() - 1), "items");
    const auto languages = [&entries]() -> QString {
        return entries.at(0)->property("checked").toString() + QLatin1Char(' ')
            + entries.at(1)->property("checked").toString() + QLatin1Char(' ')
            + QSettings().value(QStringLiteral("interfaceLanguage")).toString();
    };
    QMetaObject::invokeMethod(entries.at(1), "trigger");
    QCOMPARE(answer(QMessageBox::Ok), QStringLiteral("The screens are in English from the next start on."));
    QCOMPARE(languages(), QStringLiteral("false true en"));
    QMetaObject::invokeMethod(entries.at(0), "trigger");
    QCOMPARE(answer(QMessageBox::Ok), QStringLiteral("画面は次の起動から日本語になります。"));
    QMetaObject::invokeMethod(entries.at(0), "trigger");
    QVERIFY(!messageBox());
    QCOMPARE(languages(), QStringLiteral("true false ja"));
    // No file can be written where a folder is.
    const QString file = QSettings().fileName();
    QVERIFY(QFile::rename(file, file + QLatin1String(".kept")) && QDir().mkdir(file));
    QMetaObject::invokeMethod(entries.at(1), "trigger");
    QCOMPARE(answer(QMessageBox::Ok),
             QStringLiteral("The language could not be stored: %1 can't be written.").arg(file));
    QVERIFY(entries.at(0)->property("checked").toBool() && !entries.at(1)->property("checked").toBool());
    QVERIFY(QDir().rmdir(file) && QFile::rename(file + QLatin1String(".kept"), file));
}

void tst_ApplicationWindow::saveCheck()
{
    const auto check = [this](bool closed, bool saved, const std::function<void()> &answered) {
        loadModified();
        const QByteArray before = readAll(kTutorial);
        choose("&File", closed ? "Close tutorial" : "Exit");
        QTRY_VERIFY(saveQuestion());
        QVERIFY(QTest::qWaitForWindowActive(saveQuestion()));
        QVERIFY(find(saveQuestion()->contentItem(), QStringLiteral("\"Sample\"\nSave change?")));
        answered();
        QTRY_VERIFY(!saveQuestion());
        QVERIFY(mWindow->isVisible());
        QCOMPARE(mWindow->title(), closed ? QStringLiteral("Tutorial editor") : QStringLiteral("*Sample"));
        QCOMPARE(readAll(kTutorial) != before, saved);
    };
    check(false, false, [] { saveQuestion()->close(); });
    check(false, false, [] { QTest::keyPress(saveQuestion(), Qt::Key_Escape); });
    check(true, false, [] {
        QTest::keyPress(saveQuestion(), Qt::Key_Tab);
        QTest::keyPress(saveQuestion(), Qt::Key_Return);
    });
    check(true, true, [] { QVERIFY(answerSaveQuestion("yes")); });
}

// A failed save is told, and what asked for the check stops.
void tst_ApplicationWindow::saveThatFails()
{
    constexpr int kInTheSecondFile = 25;
    mWarnings.expect(QStringLiteral("DataSupport::writeFile"));
    mWarnings.expect(QStringLiteral("Failed to save"));
    loadModified();
    FaultyDisk::begin(kInTheSecondFile, EIO);
    choose("&File", "Close tutorial");
    QVERIFY(answerSaveQuestion("yes"));
    const QString text = answer(QMessageBox::Ok);
    FaultyDisk::end();
    QCOMPARE(text, QStringLiteral("Failed to save project.\nFailed to save translation."));
    QCOMPARE(mWindow->title(), QStringLiteral("*Sample"));
    press(QKeySequence::Save);
    QTRY_COMPARE(mWindow->title(), QStringLiteral("Sample"));

    // What would fail is told at the load.
    const QByteArray before = readAll(kJapanese);
    writeAll(kJapanese, "<");
    mWarnings.expect(QStringLiteral("Failed to setContents"), 3);
    managerInstance->loadTutorial(kTutorial);
    QVERIFY(answer(QMessageBox::Ok).endsWith(QLatin1Char('\n') + kJapanese));
    writeAll(kJapanese, before);
}

// What the host editor wants waits for the writer's answer, as at "Open".
void tst_ApplicationWindow::hostOpensATutorial()
{
    load(kShape);
    click(item("addFolderButton"));
    for (const char *button : { "cancel", "no" }) {
        QCOMPARE(mWindow->title(), QStringLiteral("*Sample"));
        // The one that was wanted last.
        for (const char *name : { "TutorialSideViewStep1", "TutorialTopViewStep1" })
            mHost.send(HostMessages::FromHost::kTutorial, QLatin1String(name));
        QTRY_VERIFY(saveQuestion());
        QVERIFY(mStarts.isEmpty());
        QVERIFY(answerSaveQuestion(button));
        QVERIFY(activate());
    }
    QTRY_COMPARE(mWindow->title(), QStringLiteral("TutorialTopViewStep1"));
    QTRY_VERIFY(!mStarts.isEmpty());
    QVERIFY(!UndoRedo::instance()->canUndo());

    // Without changes it is opened at once, and what the writer has on disk goes before a resource.
    mHost.send(HostMessages::FromHost::kTutorial, QStringLiteral("Sample"));
    QTRY_COMPARE(mWindow->title(), QStringLiteral("Sample"));
    QVERIFY(!saveQuestion());
    QCOMPARE(managerInstance->save(), QString());
}

// A question is about the tutorial that it was asked for.
void tst_ApplicationWindow::hostWaitsForTheWriter()
{
    loadModified();
    writeAll(kTutorial, "[]");
    press(QKeySequence::Save);
    QTRY_VERIFY(messageBox());
    mHost.send(HostMessages::FromHost::kTutorial, QStringLiteral("TutorialTopViewStep1"));
    mHost.send(HostMessages::FromHost::kTutorialList);
    QSignalSpy answers(&mHost, &ProgramLink::received);
    QTRY_VERIFY(answers.contains(
        { QVariant(QStringList{ HostMessages::ToHost::kTutorialList, managerInstance->getTutorialJson() }) }));
    QVERIFY(!saveQuestion());
    answer(QMessageBox::Cancel);
    QVERIFY(answerSaveQuestion("no"));
    QTRY_COMPARE(mWindow->title(), QStringLiteral("TutorialTopViewStep1"));
    // What came from a resource is saved as a file.
    QVERIFY(activate());
    press(QKeySequence::Save);
    QTRY_VERIFY(QFile::exists(QStringLiteral("tutorial-win/qml/Tutorial/TutorialTopViewStep1.js")));
    QVERIFY(!messageBox());

    // Who gives up what is unsaved for a tutorial that can't be opened still has it, and so has the copy.
    loadModified();
    const QDir folder = QFileInfo(kTutorial).dir();
    QVERIFY(folder.mkdir(QStringLiteral("Folder.js")));
    mWarnings.expect(QStringLiteral("can't be read"));
    mHost.send(HostMessages::FromHost::kTutorial, QStringLiteral("Folder"));
    QVERIFY(answerSaveQuestion("no"));
    QCOMPARE(mWindow->title(), QStringLiteral("*Sample"));
    qobject_cast<Recovery *>(managerInstance->recovery())->flush();
    const QString data = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    QVERIFY(QDirIterator(data, { QStringLiteral("copy.json") }, QDir::Files, QDirIterator::Subdirectories).hasNext());
}

// Of what stands elsewhere nothing is even opened.
void tst_ApplicationWindow::hostReachesNothingElse()
{
    load(kShape);
    const QTemporaryDir elsewhere;
    const QString secret = elsewhere.filePath(QStringLiteral("secret"));
    for (const char *suffix : { "", ".js", ".qm", ".png", ".css" })
        writeAll(secret + QLatin1String(suffix), "[{\"id\":1}]");
    const QDir folder(QFileInfo(kTutorial).absolutePath());
    QVERIFY(QFile::link(elsewhere.path(), folder.filePath(QStringLiteral("folder")))
            && QFile::link(secret + QLatin1String(".js"), folder.filePath(QStringLiteral("Link.js"))));
    const QStringList names = { secret,
                                folder.relativeFilePath(secret),
                                QStringLiteral("folder/secret"),
                                QStringLiteral("Link"),
                                QUrl::fromLocalFile(secret).toString(),
                                QStringLiteral("qrc:/../../../../../..") + secret,
                                QString(70000, QLatin1Char('n')) };
    const QString project = QDir::currentPath();
    QDir::setCurrent(elsewhere.path());
    FaultyDisk::begin(0, FaultyDisk::None);
    QDir::setCurrent(project);
    mWarnings.expect(QStringLiteral("no tutorial of the folder"), names.size() - 1);
    mWarnings.expect(QStringLiteral("presetData not found"), names.size());
    for (const QString &name : names) {
        const QString text = QStringLiteral("<link rel=stylesheet href=\"%1.css\"><table background=\"%1.png\"><tr><td>"
                                            "<img src=\"%1.png\"></table>row")
                                 .arg(name);
        mHost.send(HostMessages::FromHost::kTutorial, name);
        mHost.send(HostMessages::FromHost::kFromServer, name);
        mHost.send(HostMessages::FromHost::kRequestPresetData, name);
        mHost.send(HostMessages::FromHost::kShowTooltip, text, 100, 100);
        mHost.send(HostMessages::FromHost::kEventLog, HostMessages::FromHost::kAppend, text);
        mHost.send(HostMessages::FromHost::kEventLog, HostMessages::FromHost::kRaisedHand, text);
    }
    mHost.send(HostMessages::FromHost::kEventLog, HostMessages::FromHost::kAppend, QStringLiteral("last"));
    QQuickWindow *events = visibleWindow("TutorialEventDialog");
    QTRY_VERIFY(find(events->contentItem(), QStringLiteral("last")));
    QSignalSpy drawn(events, &QQuickWindow::frameSwapped);
    events->update();
    QVERIFY(drawn.wait());
    QCOMPARE(FaultyDisk::end(), 0);
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
    // What can't be opened takes the place of nothing.
    loadModified();
    QVERIFY(QFile::remove(kTutorial) && QDir().mkdir(kTutorial));
    press(QKeySequence::Save);
    answer(QMessageBox::No);
    QVERIFY(answer(QMessageBox::Ok).contains(QFileInfo(kTutorial).fileName()));
    QCOMPARE(mWindow->title(), QStringLiteral("*Sample"));
    QVERIFY(QDir().rmdir(kTutorial));
    press(QKeySequence::Save);
    QTRY_COMPARE(mWindow->title(), QStringLiteral("Sample"));
}

// The writer is told of it at the load, and asked at the save.
void tst_ApplicationWindow::saveThatDropsSomething()
{
    mWarnings.expect(QStringLiteral("[id] is applied for"), 6);
    const QByteArray contents = "[{\"id\":1,\"name\":\"a\",\"folder\":true,\"children\":[{\"id\":2},3]}]";
    writeAll(kTutorial, contents);
    const QString part = QStringLiteral("\na (#1), with all in it: a (#1) / entry 2 can't be read");
    QCOMPARE(managerInstance->loadTutorial(QFileInfo(kTutorial).absoluteFilePath()), QString());
    QVERIFY(answer(QMessageBox::Ok).contains(part));
    for (const QMessageBox::StandardButton button : { QMessageBox::No, QMessageBox::Yes }) {
        // Told once only.
        evaluate(QStringLiteral("reloadTutorial()"));
        QVERIFY(!messageBox());
        press(QKeySequence::Save);
        QVERIFY(answer(button).contains(part));
        QCOMPARE(readAll(kTutorial) == contents, button == QMessageBox::No);
    }
    press(QKeySequence::Save);
    QVERIFY(!messageBox());
}

void tst_ApplicationWindow::openTutorial()
{
    const auto open = [this](const QString &typed, const QByteArray &contents) {
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
    };
    mWarnings.expect(QStringLiteral("Json parse error"), 2);
    open(QStringLiteral("Sample.js"), "var scenario = [{");
    QVERIFY(answer(QMessageBox::Ok).startsWith(QStringLiteral("Failed to open new project\n")));
    const QByteArray tutorial = readAll(QStringLiteral(":/qml/Tutorial/TutorialSideViewStep1.js"));
    // One that is there, and a new name.
    for (const QString &name : { QStringLiteral("Sample"), QStringLiteral("v1.0") }) {
        open(name, tutorial);
        QTRY_COMPARE(mWindow->title(), name);
        QVERIFY(activate());
        press(QKeySequence::Save);
        const QString saved = QStringLiteral("tutorial-win/qml/Tutorial/%1.js").arg(name);
        QTRY_VERIFY(readAll(saved).startsWith("var scenario = [\n"));
        QVERIFY(!messageBox());
    }
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
    QVERIFY(text.contains(QStringLiteral("2007 Free Software Foundation, Inc. <https://fsf.org/>\n Everyone is ")));
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
    // It was on a screen that is no more.
    window()->setPosition(9000, -5000);
    window()->close();
    QTRY_VERIFY(!window());
    QVERIFY(shown());
    QVERIFY(window()->screen()->availableGeometry().contains(window()->geometry()));
    // One that is minimized is brought back, one that is maximized stays so.
    window()->showMinimized();
    QVERIFY(shown());
    QTRY_VERIFY(window()->windowState() != Qt::WindowMinimized);
    window()->showMaximized();
    QVERIFY(shown());
    QCOMPARE(window()->windowState(), Qt::WindowMaximized);
    window()->setWindowStates(Qt::WindowMinimized | Qt::WindowMaximized);
    QVERIFY(shown());
    QCOMPARE(window()->windowStates(), Qt::WindowMaximized);
}

void tst_ApplicationWindow::placesOnScreensOfNow()
{
    const QRect laptop(0, 0, 1366, 768);
    const QRect left(-1920, -100, 1920, 1200);
    struct Row
    {
        QRect window;
        QVector<QRect> screens;
        QRect placed;
    };
    const Row rows[] = {
        // Partly outside, by the user's own will.
        { { 700, 100, 966, 700 }, { laptop, left }, { 700, 100, 966, 700 } },
        { { -1000, 100, 2000, 600 }, { laptop, left }, { -1000, 100, 2000, 600 } },
        // Its screen is gone.
        { { -1900, -90, 966, 700 }, { laptop }, { 8, 32, 966, 700 } },
        { { 5000, 5000, 400, 300 }, { left, laptop }, { 958, 460, 400, 300 } },
        // Too little of it is seen.
        { { 1360, 100, 400, 300 }, { laptop }, { 958, 100, 400, 300 } },
        { { 100, 700, 400, 300 }, { laptop }, { 100, 460, 400, 300 } },
        { { 100, -64, 400, 300 }, { laptop }, { 100, 32, 400, 300 } },
        // Larger than all there is.
        { { 0, 64, 966, 788 }, { laptop }, { 8, 32, 966, 728 } },
        { { 0, 64, 1920, 700 }, { laptop }, { 8, 60, 1350, 700 } },
        { { 0, 64, 966, 788 }, {}, { 0, 64, 966, 788 } },
    };
    for (const Row &row : rows)
        QCOMPARE(WindowPlace::inSight(row.window, row.screens), row.placed);
}

AUTHORING_TEST_MAIN(tst_ApplicationWindow)
#include "tst_ApplicationWindow.moc"
