#include "AuthorDriver.h"
#include "support/FileBytes.h"
#include "support/Screen.h"
#include "Tutorial/link/HostMessages.h"
#include "WrittenTutorial.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>

namespace
{
using namespace WrittenTutorial;

const QString kHost = QStringLiteral(TRELVANE_HOST_PROGRAM);

// Places in the window at its first size, in pixels.
constexpr QPoint kAddFolder(120, 723);
constexpr QPoint kAddItem(160, 723);
constexpr QPoint kWindowKey(400, 68);
constexpr QPoint kX(290, 100);
constexpr int kProhibitionX = 203;

constexpr int kLongestPlay = 260000;

// "No" to the question first, "Yes" when it comes again.
const QList<int> kWay = { 2, 3, 10, 11, 12, 13, 14, 15, 16, 3, 8, 4, 6, 7, 17 };

QVector<Step> inOrderOfIds(const Folder &folder)
{
    QVector<Step> steps = folder.steps;
    std::sort(steps.begin(), steps.end(), [](const Step &a, const Step &b) { return a.id < b.id; });
    return steps;
}
} // namespace

/// A writer's whole work: a tutorial from an empty file to its end in the host editor, by mouse and
/// keyboard.
class tst_WriteTutorial : public AuthorDriver
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void tutorialIsWritten();
    void tutorialIsPlayedToItsEnd();
    void editsAreSavedAndTakenBack();
    void cleanup() { end(); }

private:
    bool rename(int id, const char *name);
    bool fillIn(const Step &step);
    void choose(const QPoint &button, int id);
    bool save();
    void compareFiles();
};

void tst_WriteTutorial::initTestCase()
{
    makeFolder();
    writeAll(path(kScenario), "var scenario = [\n\n];");
    writeAll(path(kJapanese), withoutHints(original(kJapanese)));
    writeAll(path(kEnglish), withoutHints(original(kEnglish)));
}

bool tst_WriteTutorial::rename(int id, const char *name)
{
    // The row of a new item takes the focus after a moment.
    if (!QTest::qWaitFor([&] { return current() == id; }, kLimit))
        return false;
    press(QStringLiteral("F2"));
    type(QLatin1String(name));
    press(QStringLiteral("Return"));
    return becomes(id, "name", QLatin1String(name));
}

bool tst_WriteTutorial::fillIn(const Step &step)
{
    static const QStringList icons = { QStringLiteral("click"),      QStringLiteral("doubleClick"),
                                       QStringLiteral("rightClick"), QStringLiteral("eye"),
                                       QStringLiteral("wait"),       QStringLiteral("keyboard") };
    const auto over = [](const QString &text) {
        press(QStringLiteral("ctrl+a"));
        type(text);
        press(QStringLiteral("Tab"));
    };
    if (*step.windowKey) {
        click(kWindowKey);
        type(QLatin1String(step.windowKey));
        press(QStringLiteral("Return"));
    }
    // From here the Tab key leads from field to field.
    click(kX);
    over(QString::number(step.x));
    over(QString::number(step.y));
    for (int i = icons.indexOf(QLatin1String(step.icon)); i > 0; --i)
        press(QStringLiteral("Down"));
    press(QStringLiteral("Tab"));
    press(QStringLiteral("Tab"));
    if (!step.showArrow)
        press(QStringLiteral("space"));
    if (step.x != kNowhere)
        press(QStringLiteral("Tab"));
    // The characters that no keyboard has come over the clipboard, which answers while the test waits.
    const QString japanese = QString::fromUtf8(step.japanese);
    QGuiApplication::clipboard()->setText(japanese);
    press(QStringLiteral("ctrl+v"));
    if (!becomes(step.id, "hint", japanese))
        return false;
    press(QStringLiteral("Tab"));
    type(QLatin1String(step.english));
    press(QStringLiteral("Tab"));
    type(QLatin1String(step.condition));
    press(QStringLiteral("Return"));
    return becomes(step.id, "condition", QLatin1String(step.condition));
}

void tst_WriteTutorial::choose(const QPoint &button, int id)
{
    // The menu opens at (Next). After that and a separator stand the folders with their items.
    click(button);
    QStringList keys;
    for (const Folder &folder : folders()) {
        keys.append(QStringLiteral("Down"));
        const auto begin = folder.steps.begin();
        const auto step = std::find_if(begin, folder.steps.end(), [id](const Step &step) { return step.id == id; });
        if (step == folder.steps.end())
            continue;
        keys.append(QStringLiteral("Right"));
        for (int i = int(step - begin); i > 0; --i)
            keys.append(QStringLiteral("Down"));
        break;
    }
    for (const QString &key : qAsConst(keys)) {
        press(key);
        QTest::qWait(200);
    }
    press(QStringLiteral("Return"));
}

bool tst_WriteTutorial::save()
{
    const bool modified = isModified();
    press(QStringLiteral("ctrl+s"));
    return modified && QTest::qWaitFor([this] { return !isModified(); }, kLimit);
}

void tst_WriteTutorial::compareFiles()
{
    // By lines, so that a failure names the first one that differs.
    const auto lines = [](const QByteArray &bytes) { return bytes.split('\n'); };
    QCOMPARE(lines(readAll(path(kScenario))), lines(WrittenTutorial::scenario()));
    QCOMPARE(lines(readAll(path(kJapanese))), lines(withHints(original(kJapanese), &Step::japanese)));
    QCOMPARE(lines(readAll(path(kEnglish))), lines(withHints(original(kEnglish), &Step::english)));
}

void tst_WriteTutorial::tutorialIsWritten()
{
    QVERIFY(start());
    QCOMPARE(items().size(), 0);
    for (const Folder &folder : folders()) {
        // The row over all others stands for the tutorial itself.
        click(row(0));
        click(kAddFolder);
        QVERIFY(rename(folder.id, folder.name));
        for (const Step &step : inOrderOfIds(folder)) {
            click(kAddItem);
            QVERIFY(rename(step.id, step.name));
            QVERIFY2(fillIn(step), step.name);
        }
    }

    // The wait, from the end of the first folder to before the tools.
    drag(row(8) + QPoint(0, 2), row(4) - QPoint(0, 9));
    QStringList names;
    QList<int> ids;
    for (const Folder &folder : folders()) {
        names.append(QLatin1String(folder.name));
        ids.append(folder.id);
        for (const Step &step : folder.steps) {
            names.append(QLatin1String(step.name));
            ids.append(step.id);
        }
    }
    QVERIFY(becomes(names));

    for (const Folder &folder : folders()) {
        for (const Step &step : folder.steps) {
            if (step.jump == kNone && step.jumpNo == kNone && !step.prohibited)
                continue;
            const QPoint place = row(1 + ids.indexOf(step.id));
            click(place);
            QVERIFY(QTest::qWaitFor([&] { return current() == step.id; }, kLimit));
            if (step.prohibited)
                click(QPoint(kProhibitionX, place.y()));
            if (step.jump != kNone)
                choose(kJump, step.jump);
            if (step.jumpNo != kNone)
                choose(kJumpNo, step.jumpNo);
            QVERIFY(becomes(step.id, "jump", step.jump));
            QVERIFY(becomes(step.id, "jumpNo", step.jumpNo));
            QVERIFY(becomes(step.id, "prohibited", step.prohibited));
        }
    }

    QVERIFY(save());
    compareFiles();
    QVERIFY(leave());
}

void tst_WriteTutorial::tutorialIsPlayedToItsEnd()
{
    QProcess host;
    host.setWorkingDirectory(mFolder->path());
    host.start(kHost,
               { QStringLiteral("--author"), QStringLiteral("--auto"), QStringLiteral("--answer"),
                 QStringLiteral("both"), QStringLiteral("--delay"), QStringLiteral("300"),
                 QStringLiteral("--exit-after"), QString::number(kLongestPlay / 1000 - 20) });
    QVERIFY(host.waitForStarted());
    QVERIFY(findWindow());
    // The event dialog, which opens a little later, may take the focus and with it the first key.
    QByteArray transcript;
    const auto hasBegun = [&] { return (transcript += host.readAllStandardOutput()).contains("*** step "); };
    bool begun = false;
    for (int i = 0; i < 3 && !begun; ++i) {
        Screen::xdotool({ QStringLiteral("windowactivate"), QStringLiteral("--sync"), mWindow });
        press(QStringLiteral("F5"));
        begun = QTest::qWaitFor(hasBegun, kLimit);
    }
    QVERIFY2(begun, transcript);
    QVERIFY(host.waitForFinished(kLongestPlay));
    transcript += host.readAllStandardOutput();

    QList<int> way;
    auto steps = QRegularExpression(QStringLiteral("^\\*\\*\\* step (\\d+): "), QRegularExpression::MultilineOption)
                     .globalMatch(QString::fromUtf8(transcript));
    while (steps.hasNext())
        way.append(steps.next().captured(1).toInt());
    QVERIFY2(way == kWay, transcript);
    QCOMPARE(host.exitCode(), 0);
    compareFiles();
}

void tst_WriteTutorial::editsAreSavedAndTakenBack()
{
    // Row 2 is the item of the id 2, row 5 that of the id 4.
    QVERIFY(start());
    click(row(2));
    QVERIFY(rename(2, "hello again"));
    press(QStringLiteral("ctrl+z"));
    QVERIFY(becomes(2, "name", QStringLiteral("hello")) && !isModified());
    press(QStringLiteral("ctrl+shift+z"));
    QVERIFY(becomes(2, "name", QStringLiteral("hello again")));
    click(row(5));
    click(row(5));
    type(QStringLiteral("the tools"));
    press(QStringLiteral("Return"));
    QVERIFY(becomes(4, "name", QStringLiteral("the tools")));

    // A position over the window that the step tracks, and texts that are still being typed.
    mHost->send(HostMessages::FromHost::kControlPosition, QStringLiteral("MainWindow/toolSelect"), 40, -50);
    click(kCondition);
    press(QStringLiteral("ctrl+a"));
    type(QStringLiteral("wait,300"));
    press(QStringLiteral("F4"));
    const QStringList cursor =
        Screen::xdotool({ QStringLiteral("getmouselocation"), QStringLiteral("--shell") }).split(QLatin1Char('\n'));
    QVERIFY(becomes(4, "x", cursor.at(0).mid(2).toInt() - 40));
    QCOMPARE(value(4, "y").toInt(), cursor.at(1).mid(2).toInt() + 50);
    QCOMPARE(value(4, "condition").toString(), QStringLiteral("wait,300"));
    click(kHint2);
    press(QStringLiteral("ctrl+End"));
    type(QStringLiteral(" <b> & 'c'"));
    QVERIFY(save());
    QVERIFY(readAll(path(kEnglish)).contains("The tools. &lt;b> &amp; 'c'</translation>"));

    const QList<QJsonObject> saved = items();
    const QByteArray bytes = readAll(path(kScenario));
    QVERIFY(leave());
    QVERIFY(start());
    QCOMPARE(items(), saved);

    const QStringList before = names();
    const auto undone = [&] {
        press(QStringLiteral("ctrl+z"));
        return becomes(before) && !isModified();
    };
    click(row(5));
    press(QStringLiteral("ctrl+c"));
    press(QStringLiteral("ctrl+v"));
    const QStringList pasted = before + QStringList(QStringLiteral("the tools(1)"));
    QVERIFY(becomes(pasted));
    // Below the question, the window answers no key although a click has given it the focus.
    press(QStringLiteral("ctrl+w"));
    const QStringList question = { QStringLiteral("search"), QStringLiteral("--onlyvisible"), QStringLiteral("--name"),
                                   QStringLiteral("^プロジェクトの保存$") };
    QTRY_VERIFY(!Screen::xdotool(question).isEmpty());
    QTest::qWait(kSlow);
    click(kCondition);
    press(QStringLiteral("ctrl+z"));
    press(QStringLiteral("alt+f"));
    QTest::qWait(kSlow);
    press(QStringLiteral("Escape"));
    QTRY_VERIFY(Screen::xdotool(question).isEmpty());
    QVERIFY(becomes(pasted));
    QVERIFY(undone());

    // Two rows at once, to before the first one.
    click(row(5));
    move(row(6));
    Screen::xdotool({ QStringLiteral("keydown"), QStringLiteral("shift"), QStringLiteral("click"), QStringLiteral("1"),
                      QStringLiteral("keyup"), QStringLiteral("shift") });
    QTest::qWait(kSlow);
    drag(row(6) + QPoint(0, 2), row(2) - QPoint(0, 9));
    QStringList moved = before;
    moved.move(4, 1);
    moved.move(5, 2);
    QVERIFY(becomes(moved));
    QVERIFY(undone());

    click(row(2));
    press(QStringLiteral("Delete"));
    QStringList deleted = before;
    deleted.removeAt(1);
    QVERIFY(becomes(deleted));
    QVERIFY(undone());
    QCOMPARE(readAll(path(kScenario)), bytes);
    QVERIFY(leave());
}

QTEST_MAIN(tst_WriteTutorial)
#include "tst_WriteTutorial.moc"
