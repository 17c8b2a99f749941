#include "AuthorDriver.h"

#include <QClipboard>
#include <QGuiApplication>

/// A writer's whole work: a tutorial from an empty file to its end in the host editor, by mouse and
/// keyboard, also over the end of a program that was killed.
class tst_WriteTutorial : public QObject, private AuthorDriver
{
    Q_OBJECT

private Q_SLOTS:
    void tutorialIsWritten();
    void tutorialIsPlayedToItsEnd();
    void editsAreSavedOrComeBack();
    void cleanup() { mHost.reset(); }

private:
    bool rename(int id, const QString &name)
    {
        // The row of a new item takes the focus after a moment.
        if (!QTest::qWaitFor([&] { return current() == id; }, kLimit))
            return false;
        press("F2");
        type(name);
        press("Return");
        return becomes(id, "name", name);
    }
    bool fillIn(const QJsonObject &step);
    /// Kills the program once its copy of the unsaved changes holds that text. What it asks at the next start has the
    /// keys then.
    bool killAndStart(const QByteArray &text)
    {
        const auto isKept = [&] {
            QDirIterator files(mFolder.path(), { QStringLiteral("copy.json") }, QDir::Files,
                               QDirIterator::Subdirectories);
            return files.hasNext() && readAll(files.next()).contains(text);
        };
        return QTest::qWaitFor(isKept, kLimit) && launch() && find("保存されていない変更");
    }
};

namespace
{
// Places in the window at its first size, in pixels.
constexpr QPoint kAddFolder(120, 723);
constexpr QPoint kAddItem(160, 723);
constexpr QPoint kWindowKey(400, 68);
constexpr QPoint kX(290, 100);
constexpr QPoint kHint2(600, 570);
constexpr QPoint kCondition(480, 678);
constexpr QPoint kJump(430, 714);
constexpr QPoint kJumpNo(800, 714);
constexpr int kProhibitionX = 203;

// The tutorial in the order of making, over what a new step has.
const char kNewStep[] = R"({"folder":false, "x":-9999, "y":-9999, "windowKey":"", "condition":"click",
"icon":"click", "jump":-1, "jumpNo":-1, "command":"", "showArrow":true, "prohibited":false})";
const char kSteps[] = R"([
{"id":1, "name":"Start \"here\"", "folder":true},
{"id":2, "name":"hello", "windowKey":"MainWindow", "x":184, "y":150, "icon":"eye", "showArrow":false,
 "hint":"ようこそ！", "hint2":"Welcome!"},
{"id":3, "name":"ask", "windowKey":"MainWindow", "x":184, "y":150, "condition":"yesNo", "showArrow":false,
 "jumpNo":8, "hint":"中を見ますか？", "hint2":"Look <round> & \"in\"?"},
{"id":4, "name":"wait", "icon":"wait", "condition":"wait,400", "hint":"少々お待ちください。", "hint2":"One moment."},
{"id":5, "name":"canvas", "windowKey":"MainWindow/canvas", "x":162, "y":17, "prohibited":true,
 "hint":"キャンバス", "hint2":"Canvas"},
{"id":6, "name":"tools", "windowKey":"MainWindow/toolSelect", "x":6, "y":-117, "icon":"eye", "jump":11,
 "hint":"道具は\n左です。", "hint2":"The tools\nat the left."},
{"id":7, "name":"Draw 100% \\ %1", "folder":true},
{"id":8, "name":"draw", "windowKey":"MainWindow/canvas", "x":22, "y":-73, "icon":"keyboard",
 "condition":"mouseEvent,MainWindow/canvas,drag", "hint":"描く", "hint2":"Draw"},
{"id":9, "name":"grid", "windowKey":"MainWindow/gridCheck", "x":-28, "y":-121,
 "condition":"checked,MainWindow/gridCheck,true", "hint":"格子", "hint2":"Grid"},
{"id":10, "name":"back", "windowKey":"MainWindow", "x":184, "y":150, "jump":3, "hint":"もう一度", "hint2":"Once more"},
{"id":11, "name":"goodbye", "windowKey":"MainWindow", "x":184, "y":150, "hint":"おわり", "hint2":"The end"}
])";

QList<QJsonObject> steps()
{
    QList<QJsonObject> steps;
    for (const QJsonValue &value : QJsonDocument::fromJson(kSteps).array()) {
        const QJsonObject row = value.toObject();
        QJsonObject step = row.contains(QLatin1String("folder")) ? row : QJsonDocument::fromJson(kNewStep).object();
        for (const QString &key : row.keys())
            step.insert(key, row.value(key));
        steps.append(step);
    }
    return steps;
}

/// The steps as the file of one language shows them in the end.
QList<QJsonObject> stepsWith(const QString &hint)
{
    QList<QJsonObject> all = steps();
    for (QJsonObject &step : all) {
        // Without one, as in a folder, the key goes.
        step.insert(QStringLiteral("hint"), step.value(hint));
        step.remove(QStringLiteral("hint2"));
    }
    return all;
}
} // namespace

bool tst_WriteTutorial::fillIn(const QJsonObject &step)
{
    const QStringList icons = { QStringLiteral("click"), QStringLiteral("doubleClick"), QStringLiteral("rightClick"),
                                QStringLiteral("eye"),   QStringLiteral("wait"),        QStringLiteral("keyboard") };
    const auto field = [&step](const char *key) { return step.value(QLatin1String(key)); };
    const int id = field("id").toInt();
    if (!field("windowKey").toString().isEmpty()) {
        click(kWindowKey);
        type(field("windowKey").toString());
        press("Return");
    }
    // From here the Tab key leads from field to field.
    click(kX);
    for (const char *key : { "x", "y" }) {
        press("ctrl+a");
        type(QString::number(field(key).toInt()));
        press("Tab");
    }
    for (int i = icons.indexOf(field("icon").toString()); i > 0; --i)
        press("Down");
    press("Tab Tab");
    if (!field("showArrow").toBool())
        press("space");
    if (!field("windowKey").toString().isEmpty())
        press("Tab");
    // The characters that no keyboard has come over the clipboard, which answers while the test waits.
    QGuiApplication::clipboard()->setText(field("hint").toString());
    press("ctrl+v");
    if (!becomes(id, "hint", field("hint")))
        return false;
    press("Tab");
    type(field("hint2").toString());
    press("Tab");
    type(field("condition").toString());
    press("Return");
    return becomes(id, "condition", field("condition"));
}

void tst_WriteTutorial::tutorialIsWritten()
{
    QVERIFY(start());
    QCOMPARE(items(), QList<QJsonObject>());
    for (const QJsonObject &step : steps()) {
        const bool folder = step.value(QLatin1String("folder")).toBool();
        // The row over all others stands for the tutorial itself.
        if (folder)
            click(row(0));
        click(folder ? kAddFolder : kAddItem);
        const QString name = step.value(QLatin1String("name")).toString();
        QVERIFY(rename(step.value(QLatin1String("id")).toInt(), name));
        QVERIFY2(folder || fillIn(step), qPrintable(name));
    }

    const auto select = [this](int index, int id) {
        click(row(index));
        return QTest::qWaitFor([&] { return current() == id; }, kLimit);
    };
    QVERIFY(select(5, 5));
    click(QPoint(kProhibitionX, row(5).y()));
    // The menus open at (Next). After that and a separator stand the folders with their items.
    QVERIFY(select(3, 3));
    click(kJumpNo);
    press("--delay 200 Down Down Right Return");
    QVERIFY(select(6, 6));
    click(kJump);
    press("--delay 200 Down Down Right Down Down Down Return");
    QVERIFY(select(10, 10));
    click(kJump);
    press("--delay 200 Down Right Down Return");

    QVERIFY(isModified());
    press("ctrl+s");
    QTRY_VERIFY_WITH_TIMEOUT(!isModified(), kLimit);
    QCOMPARE(stored("ja_JP"), stepsWith(QStringLiteral("hint")));
    QCOMPARE(stored("en_US"), stepsWith(QStringLiteral("hint2")));
}

void tst_WriteTutorial::tutorialIsPlayedToItsEnd()
{
    QProcess host;
    host.setWorkingDirectory(mFolder.path());
    host.start(QStringLiteral(TRELVANE_HOST_PROGRAM),
               QStringLiteral("--author --tutorial TutorialSideViewStep0 --auto --answer both --delay 300 "
                              "--exit-after 160")
                   .split(QLatin1Char(' ')));
    QVERIFY(host.waitForFinished(180000));
    const QByteArray transcript = host.readAllStandardOutput();
    QStringList way;
    for (const QByteArray &line : transcript.split('\n')) {
        if (line.startsWith("*** step "))
            way += QString::fromUtf8(line.mid(9, line.indexOf(':') - 9));
    }
    // "No" to the question first, "Yes" when it comes again.
    QVERIFY2(way.join(QLatin1Char(' ')) == QLatin1String("2 3 8 9 10 3 4 6 11"), transcript);
    QCOMPARE(host.exitCode(), 0);
}

void tst_WriteTutorial::editsAreSavedOrComeBack()
{
    QVERIFY(start());
    QCOMPARE(items(), stepsWith(QStringLiteral("hint")));
    // A position over the window that the step tracks, and texts that are still being typed.
    click(row(6));
    mHost->send(HostMessages::FromHost::kControlPosition, QStringLiteral("MainWindow/toolSelect"), 40, -50);
    click(kCondition);
    press("ctrl+a");
    type(QStringLiteral("wait,300"));
    press("F4");
    const QStringList cursor = xdotool(QStringLiteral("getmouselocation --shell")).split(QLatin1Char('\n'));
    QVERIFY(becomes(6, "x", cursor.at(0).mid(2).toInt() - 40));
    QVERIFY(becomes(6, "y", cursor.at(1).mid(2).toInt() + 50));
    QVERIFY(becomes(6, "condition", QStringLiteral("wait,300")));
    click(kHint2);
    press("ctrl+End");
    type(QStringLiteral(" <b> & 'c'"));
    click(kCondition);
    press("ctrl+a");
    type(QStringLiteral("wait,200"));
    QVERIFY(killAndStart("wait,200"));
    press("Tab Return");
    // With the list of the changes.
    QTRY_COMPARE(Screen::places(mHost->process().processId(), QSize(560, 400)).size(), 1);
    press("shift+Tab Return");
    QVERIFY(find());
    QTRY_VERIFY_WITH_TIMEOUT(isModified(), kLimit);
    press("ctrl+s");
    QTRY_VERIFY_WITH_TIMEOUT(!isModified(), kLimit);
    QCOMPARE(stored("en_US").at(5).value(QLatin1String("hint")).toString(),
             QStringLiteral("The tools\nat the left. <b> & 'c'"));
    QCOMPARE(stored("ja_JP").at(5).value(QLatin1String("condition")).toString(), QStringLiteral("wait,200"));

    const QList<QJsonObject> saved = items();
    QCOMPARE(stored("ja_JP"), saved);
    click(row(5));
    press("ctrl+c");
    press("ctrl+v");
    QTRY_COMPARE_WITH_TIMEOUT(items().size(), saved.size() + 1, kLimit);
    // Below the question, the window answers no key although a click has given it the focus.
    press("ctrl+w");
    const char *const question = "プロジェクトの保存";
    QTRY_VERIFY(!window(question).isEmpty());
    QTest::qWait(kSlow);
    click(kCondition);
    press("ctrl+z");
    press("alt+f");
    QTest::qWait(kSlow);
    press("Escape");
    QTRY_VERIFY(window(question).isEmpty());
    QCOMPARE(items().size(), saved.size() + 1);
    QVERIFY(killAndStart("canvas(1)"));
    press("Tab Tab Return");
    QVERIFY(find());
    QTRY_COMPARE_WITH_TIMEOUT(items(), saved, kLimit);
    QVERIFY(!isModified());
    press("ctrl+q");
    QVERIFY(mHost->waitForExit(kLimit));
    QCOMPARE(mHost->process().exitCode(), 0);
}

QTEST_MAIN(tst_WriteTutorial)
#include "tst_WriteTutorial.moc"
