#include "MainWindowFixture.h"

#include "Tutorial/ProcessGlobals.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QQuickItem>
#include <QQuickWindow>
#include <QScreen>
#include <QSettings>
#include <QTest>

#include <cstdlib>
#include <memory>

namespace
{
const QString kEndsByKeys = QStringLiteral("--ends-by-keys");
const QString kEndsByClosing = QStringLiteral("--ends-by-closing");
constexpr int kStillThere = 99;

std::unique_ptr<MainWindowFixture> fixture;

QMessageBox *messageBox()
{
    return qobject_cast<QMessageBox *>(MainWindowFixture::visibleDialog());
}

/// A box that goes before the window manager has given it the focus leaves the focus nowhere.
bool waitForMessageBox()
{
    return QTest::qWaitFor([] { return messageBox() != nullptr; }) && QTest::qWaitForWindowActive(messageBox());
}
} // namespace

class tst_ApplicationWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void startsWithoutTutorial();
    void titleFollowsTutorial();
    void entriesFollowState_data();
    void entriesFollowState();
    void forwardedEntries();
    void versionAndLicence();
    void saveCheck_data();
    void saveCheck();
    void saveThatFails();
    void closingAsks();
    void confirmAnswersOnce_data();
    void confirmAnswersOnce();
    void alertIsTakenOver();
    void boxInAContainer();
    void nameChange();
    void openTutorial_data();
    void openTutorial();
    void geometryIsKept();
    void endsByItself_data();
    void endsByItself();

private:
    QQuickWindow *window() const { return fixture->window(); }
    QString tutorialName() const { return fixture->manager()->property("tutorialName").toString(); }
    void setModified() { fixture->manager()->setProperty("modified", true); }
    bool modified() const { return fixture->manager()->property("modified").toBool(); }
    bool entryEnabled(const QString &text) const;
    void activate();
    void pressKeys(Qt::Key key);
    void chooseEntry(Qt::Key menu, int downs);
};

void tst_ApplicationWindow::initTestCase()
{
    fixture = std::make_unique<MainWindowFixture>();
    QVERIFY(fixture->load());
}

void tst_ApplicationWindow::cleanup()
{
    while (QWidget *dialog = MainWindowFixture::visibleDialog())
        dialog->close();
    fixture->evaluate(QStringLiteral("TutorialManager.unload()"));
    fixture->evaluate(QStringLiteral("activeMenu = null"));
    fixture->manager()->setProperty("modified", false);
    fixture->recorder().take();
}

bool tst_ApplicationWindow::entryEnabled(const QString &text) const
{
    return fixture
        ->evaluate(QStringLiteral("(function() {"
                                  "  for (var m = 0; m < menuBar.menus.length; ++m)"
                                  "    for (var i = 0; i < menuBar.menus[m].items.length; ++i)"
                                  "      if (menuBar.menus[m].items[i].text === \"%1\")"
                                  "        return menuBar.menus[m].items[i].enabled;"
                                  "})()")
                       .arg(text))
        .toBool();
}

// The dialogs before have given the focus back.
void tst_ApplicationWindow::activate()
{
    window()->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(window()));
    QTRY_COMPARE(QGuiApplication::focusWindow(), window());
}

void tst_ApplicationWindow::pressKeys(Qt::Key key)
{
    activate();
    QTest::keyClick(window(), key, Qt::ControlModifier);
}

void tst_ApplicationWindow::chooseEntry(Qt::Key menu, int downs)
{
    activate();
    QQuickWindow *popup = fixture->openMenu(menu);
    QVERIFY(popup != nullptr);
    QVERIFY(QTest::qWaitForWindowExposed(popup));
    for (int i = 0; i < downs; ++i)
        QTest::keyClick(window(), Qt::Key_Down);
    QTest::keyClick(window(), Qt::Key_Return);
}

void tst_ApplicationWindow::startsWithoutTutorial()
{
    fixture->evaluate(QStringLiteral("TutorialManager.unload()"));
    QCOMPARE(window()->title(), QStringLiteral("Tutorial editor"));
    // Its own size, as far as the screen goes.
    const QSize screen = window()->screen()->availableSize();
    QVERIFY(window()->width() > qMin(966, screen.width()) - 100);
    QVERIFY(window()->height() > qMin(788, screen.height()) - 100);
    QVERIFY(window()->flags().testFlag(Qt::WindowMaximizeButtonHint));
    QVERIFY(!fixture->evaluate(QStringLiteral("ready")).toBool());
}

void tst_ApplicationWindow::titleFollowsTutorial()
{
    fixture->loadTutorial();
    QCOMPARE(window()->title(), tutorialName());
    setModified();
    QCOMPARE(window()->title(), QLatin1Char('*') + tutorialName());
}

void tst_ApplicationWindow::entriesFollowState_data()
{
    QTest::addColumn<bool>("loaded");
    QTest::addColumn<QStringList>("enabled");
    QTest::addColumn<QStringList>("disabled");
    const QStringList always = { QStringLiteral("&Open tutorial"), QStringLiteral("Open tutorial folder"),
                                 QStringLiteral("Exit"), QStringLiteral("&Version"), QStringLiteral("&License") };
    const QStringList withTutorial = { QStringLiteral("Close tutorial"), QStringLiteral("Save tutorial"),
                                       QStringLiteral("Start tutorial"), QStringLiteral("Start current") };
    const QStringList never = { QStringLiteral("&Add folder"), QStringLiteral("Create &item"), QStringLiteral("Copy"),
                                QStringLiteral("Cut"),         QStringLiteral("Paste"),        QStringLiteral("Delete"),
                                QStringLiteral("&Undo"),       QStringLiteral("&Redo") };
    QTest::newRow("no tutorial") << false << always << withTutorial + never;
    QTest::newRow("a tutorial") << true << always + withTutorial << never;
}

void tst_ApplicationWindow::entriesFollowState()
{
    QFETCH(bool, loaded);
    QFETCH(QStringList, enabled);
    QFETCH(QStringList, disabled);
    if (loaded)
        fixture->loadTutorial();
    for (const QString &text : enabled)
        QVERIFY2(entryEnabled(text), qPrintable(text));
    for (const QString &text : disabled)
        QVERIFY2(!entryEnabled(text), qPrintable(text));
}

// The entries of the menu bar stand for those of the list that has the focus.
void tst_ApplicationWindow::forwardedEntries()
{
    fixture->evaluate(QStringLiteral("activeMenu = Qt.createQmlObject("
                                     "'import QtQuick 2.9; QtObject { id: menu;"
                                     "  property QtObject addFolderMi: QtObject { property bool enabled: true;"
                                     "    function trigger() { recorder.add(\"addFolder\"); } }"
                                     "  property QtObject copyMi: QtObject { property bool enabled: true;"
                                     "    function trigger() { recorder.add(\"copy\"); } }"
                                     "  property QtObject cutMi: QtObject { property bool enabled: false } }',"
                                     "applicationWindow, \"menu\")"));
    QVERIFY(entryEnabled(QStringLiteral("&Add folder")));
    QVERIFY(entryEnabled(QStringLiteral("Copy")));
    QVERIFY(!entryEnabled(QStringLiteral("Cut")));
    QVERIFY(!entryEnabled(QStringLiteral("Paste")));
    pressKeys(Qt::Key_C);
    QCOMPARE(fixture->recorder().take(), QStringList(QStringLiteral("copy")));

    chooseEntry(Qt::Key_E, 1);
    QTRY_COMPARE(fixture->recorder().values(), QStringList(QStringLiteral("addFolder")));
    fixture->evaluate(QStringLiteral("activeMenu.copyMi.enabled = false"));
    QVERIFY(!entryEnabled(QStringLiteral("Copy")));
}

void tst_ApplicationWindow::versionAndLicence()
{
    chooseEntry(Qt::Key_H, 1);
    QVERIFY(waitForMessageBox());
    QCOMPARE(messageBox()->text(), QStringLiteral("Version:VERSION"));
    QTest::keyClick(messageBox(), Qt::Key_Return);
    QTRY_VERIFY(messageBox() == nullptr);

    chooseEntry(Qt::Key_H, 2);
    const auto licence = [] { return fixture->visibleWindow(QStringLiteral("LicenseWindow")); };
    QTRY_VERIFY(licence() != nullptr);
    QVERIFY(QTest::qWaitForWindowExposed(licence()));
    QQuickItem *texts = MainWindowFixture::find(licence()->contentItem(), QStringLiteral("licences"));
    QVERIFY(texts != nullptr);
    const QString text = texts->property("text").toString();
    const int sentence = text.indexOf(QStringLiteral("Qt を使用"));
    const int lesser = text.indexOf(QStringLiteral("GNU LESSER GENERAL PUBLIC LICENSE"));
    const int notice = text.indexOf(QStringLiteral("under the terms of the BSD license"));
    QVERIFY(sentence >= 0 && sentence < lesser && lesser < notice);
    QVERIFY(text.contains(QStringLiteral("6. Revised Versions of the GNU Lesser General Public License")));
    QVERIFY(text.trimmed().endsWith(QStringLiteral("POSSIBILITY OF SUCH DAMAGE.\"")));
    QCOMPARE(texts->width(), 560.0);
    MainWindowFixture::click(licence(), QStringLiteral("ok"));
    QTRY_VERIFY(licence() == nullptr);
}

void tst_ApplicationWindow::saveCheck_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("closed");
    QTest::addColumn<bool>("saved");
    QTest::newRow("Yes") << "yes" << true << true;
    QTest::newRow("No") << "no" << true << false;
    QTest::newRow("Cancel") << "cancel" << false << false;
    QTest::newRow("its own close button") << QString() << false << false;
}

void tst_ApplicationWindow::saveCheck()
{
    QFETCH(QString, button);
    QFETCH(bool, closed);
    QFETCH(bool, saved);
    fixture->loadTutorial();
    const QString name = tutorialName();
    setModified();
    QFile file(fixture->tutorialFile());
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QByteArray before = "changed by another";
    file.write(before);
    file.close();

    chooseEntry(Qt::Key_F, 2);
    const auto dialog = [] { return fixture->visibleWindow(QStringLiteral("SaveChangeDialog")); };
    QTRY_VERIFY(dialog() != nullptr);
    QVERIFY(QTest::qWaitForWindowExposed(dialog()));
    QVERIFY(MainWindowFixture::find(dialog()->contentItem(), QStringLiteral("\"%1\"\nSave change?").arg(name))
            != nullptr);
    if (button.isEmpty())
        dialog()->close();
    else
        MainWindowFixture::click(dialog(), button);
    QTRY_VERIFY(dialog() == nullptr);
    QCOMPARE(tutorialName().isEmpty(), closed);
    QCOMPARE(modified(), !closed);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll() != before, saved);
    QVERIFY(messageBox() == nullptr);
}

// A failed save is told, and what asked for the check stops.
void tst_ApplicationWindow::saveThatFails()
{
    fixture->loadTutorial();
    setModified();
    QVERIFY(QFile::remove(QStringLiteral("tutorial-win/translations/ja_JP.ts")));
    QVERIFY(QDir().mkpath(QStringLiteral("tutorial-win/translations/ja_JP.ts")));
    fixture->evaluate(QStringLiteral("checkSaveTutorial(function(result) { recorder.add(result); })"));
    const auto dialog = [] { return fixture->visibleWindow(QStringLiteral("SaveChangeDialog")); };
    QTRY_VERIFY(dialog() != nullptr);
    QVERIFY(QTest::qWaitForWindowExposed(dialog()));
    MainWindowFixture::click(dialog(), QStringLiteral("yes"));
    QVERIFY(waitForMessageBox());
    QVERIFY(messageBox()->text().startsWith(QStringLiteral("Failed to save project.\n")));
    QCOMPARE(fixture->recorder().take(), QStringList(QStringLiteral("-1")));
    QVERIFY(modified());
    messageBox()->close();

    pressKeys(Qt::Key_S);
    QVERIFY(waitForMessageBox());
    QCOMPARE(messageBox()->text(), QStringLiteral("Failed to save translation."));
    QVERIFY(modified());
    messageBox()->close();
    QDir().rmdir(QStringLiteral("tutorial-win/translations/ja_JP.ts"));
}

void tst_ApplicationWindow::closingAsks()
{
    fixture->loadTutorial();
    setModified();
    window()->close();
    const auto dialog = [] { return fixture->visibleWindow(QStringLiteral("SaveChangeDialog")); };
    QTRY_VERIFY(dialog() != nullptr);
    QVERIFY(window()->isVisible());
    QVERIFY(QTest::qWaitForWindowExposed(dialog()));
    MainWindowFixture::click(dialog(), QStringLiteral("cancel"));
    QTRY_VERIFY(dialog() == nullptr);
    QVERIFY(window()->isVisible());
    QVERIFY(modified());
    QVERIFY(!tutorialName().isEmpty());
}

void tst_ApplicationWindow::confirmAnswersOnce_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<QStringList>("answers");
    QTest::newRow("Yes") << int(QMessageBox::Yes) << QStringList(QStringLiteral("1"));
    QTest::newRow("No") << int(QMessageBox::No) << QStringList(QStringLiteral("0"));
}

void tst_ApplicationWindow::confirmAnswersOnce()
{
    QFETCH(int, button);
    QFETCH(QStringList, answers);
    fixture->evaluate(QStringLiteral("confirm(null, \"Really?\", function(result) { recorder.add(result); })"));
    QVERIFY(waitForMessageBox());
    QCOMPARE(messageBox()->windowTitle(), QStringLiteral("Tutorial Editor"));
    QCOMPARE(messageBox()->text(), QStringLiteral("Really?"));
    QTest::mouseClick(messageBox()->button(QMessageBox::StandardButton(button)), Qt::LeftButton);
    QTRY_VERIFY(messageBox() == nullptr);
    QCOMPARE(fixture->recorder().take(), answers);
}

void tst_ApplicationWindow::alertIsTakenOver()
{
    fixture->evaluate(QStringLiteral("alert(\"first\", function() { recorder.add(\"first\"); })"));
    QVERIFY(waitForMessageBox());
    fixture->evaluate(
        QStringLiteral("alert(\"second\", function(accepted) { recorder.add(\"second \" + accepted); })"));
    QTRY_COMPARE(messageBox()->text(), QStringLiteral("second"));
    QTest::keyClick(messageBox(), Qt::Key_Return);
    QTRY_VERIFY(messageBox() == nullptr);
    QCOMPARE(fixture->recorder().take().join(QLatin1Char(',')), QStringLiteral("second true"));
}

void tst_ApplicationWindow::boxInAContainer()
{
    const auto count = [] {
        return fixture->window()->contentItem()->findChildren<QObject *>(QStringLiteral("ConfirmDialog")).size();
    };
    QCOMPARE(count(), 0);
    fixture->evaluate(
        QStringLiteral("confirm(\"Own\", \"Really?\", function(result) { recorder.add(result); }, contentItem)"));
    QVERIFY(waitForMessageBox());
    QCOMPARE(messageBox()->windowTitle(), QStringLiteral("Own"));
    QTest::mouseClick(messageBox()->button(QMessageBox::Yes), Qt::LeftButton);
    QTRY_VERIFY(messageBox() == nullptr);
    QCOMPARE(fixture->recorder().take(), QStringList(QStringLiteral("1")));
    QTRY_COMPARE(count(), 0);
}

void tst_ApplicationWindow::nameChange()
{
    fixture->evaluate(
        QStringLiteral("Qt.createQmlObject('import \"qrc:/qml/Controls\"; NameChangeDialog {}', contentItem, \"n\")"
                       ".dialogNameChange(\"old %1\", \"new %2\", function() { recorder.add(\"yes\"); })"));
    QVERIFY(waitForMessageBox());
    QCOMPARE(messageBox()->text(), QStringLiteral("There is the same tutorial item name.\nChange old %1 to new %2 ?"));
    QTest::mouseClick(messageBox()->button(QMessageBox::No), Qt::LeftButton);
    QTRY_VERIFY(messageBox() == nullptr);
    QVERIFY(fixture->recorder().take().isEmpty());
}

void tst_ApplicationWindow::openTutorial_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<bool>("alerts");
    QFile file(QStringLiteral(":/qml/Tutorial/TutorialSideViewStep1.js"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QTest::newRow("a tutorial") << file.readAll() << false;
    QTest::newRow("no tutorial") << QByteArray("var scenario = [{") << true;
}

void tst_ApplicationWindow::openTutorial()
{
    QFETCH(QByteArray, contents);
    QFETCH(bool, alerts);
    QFile file(QStringLiteral("tutorial-win/qml/Tutorial/Chosen.js"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(contents);
    file.close();

    pressKeys(Qt::Key_O);
    const auto dialog = [] { return qobject_cast<QFileDialog *>(MainWindowFixture::visibleDialog()); };
    QTRY_VERIFY(dialog() != nullptr);
    QVERIFY(QTest::qWaitForWindowActive(dialog()));
    QCOMPARE(dialog()->windowTitle(), QStringLiteral("Open tutorial"));
    QCOMPARE(dialog()->directory().canonicalPath(),
             QFileInfo(QStringLiteral("tutorial-win/qml/Tutorial")).canonicalFilePath());
    auto *name = dialog()->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    QVERIFY(name != nullptr);
    name->clear();
    QTest::keyClicks(name, QStringLiteral("Chosen.js"));
    QTest::keyClick(name, Qt::Key_Return);
    QTRY_VERIFY(dialog() == nullptr);
    if (alerts) {
        QVERIFY(waitForMessageBox());
        QVERIFY(messageBox()->text().startsWith(QStringLiteral("Failed to open new project\n")));
    } else {
        QTRY_COMPARE(tutorialName(), QStringLiteral("Chosen"));
        QVERIFY(messageBox() == nullptr);
    }
}

void tst_ApplicationWindow::geometryIsKept()
{
    window()->resize(1000, 700);
    const auto stored = [] { return QSettings().value(QStringLiteral("main.applicationWindow/width")).toInt(); };
    QTRY_COMPARE(stored(), window()->width());
}

void tst_ApplicationWindow::endsByItself_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("Exit") << kEndsByKeys;
    QTest::newRow("closing") << kEndsByClosing;
}

// In a process of its own, which this ends.
void tst_ApplicationWindow::endsByItself()
{
    QFETCH(QString, way);
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(QCoreApplication::applicationFilePath(), { way });
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

int endByItself(const QString &way)
{
    MainWindowFixture ownFixture;
    if (!ownFixture.load())
        return 1;
    ownFixture.evaluate(QStringLiteral("TutorialManager.unload()"));
    if (way == kEndsByKeys) {
        QQuickWindow *menu = ownFixture.openMenu(Qt::Key_F);
        // Open tutorial, Open tutorial folder, Exit.
        for (int i = 0; menu != nullptr && i < 3; ++i)
            QTest::keyClick(ownFixture.window(), Qt::Key_Down);
        QTest::keyClick(ownFixture.window(), Qt::Key_Return);
    } else {
        ownFixture.window()->close();
    }
    QTest::qWait(3000);
    return kStillThere;
}
} // namespace

int main(int argc, char *argv[])
{
    const QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    qputenv("XDG_DATA_HOME", home.path().toLocal8Bit());
    QByteArray suffix = MainWindowFixture::linkSuffix().toLocal8Bit();
    int count = 2;
    char *arguments[] = { argv[0], suffix.data(), nullptr };
    QApplication application(count, arguments);
    QCoreApplication::setApplicationName(QStringLiteral("Trelvane"));
    QCoreApplication::setOrganizationName(QStringLiteral("Harnwick"));
    QLocale::setDefault(QLocale::c());
    if (argc > 1 && QByteArray(argv[1]).startsWith("--ends-by"))
        return endByItself(QString::fromLocal8Bit(argv[1]));
    closeLogFileHook = failOnEnd;
    tst_ApplicationWindow test;
    const int result = QTest::qExec(&test, argc, argv);
    fixture.reset();
    return result;
}

#include "tst_ApplicationWindow.moc"
