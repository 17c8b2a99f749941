#include "AutoPlayer.h"
#include "EventLog.h"
#include "HostOptions.h"
#include "HostScenario.h"
#include "ProgramWindows.h"
#include "ScenarioWalker.h"
#include "StepCondition.h"
#include "Transcript.h"

#include <QFile>
#include <QSignalSpy>
#include <QTest>
#include <QTextDocumentFragment>

Q_DECLARE_METATYPE(StepCondition::Waits)

/// The decisions of the stand-in host editor: what a scenario's steps are, in which order they come,
/// what ends each.
class tst_HostScenario : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void scriptIsRun_data();
    void scriptIsRun();
    void stepKeepsItsFields();
    void order_data();
    void order();
    void begin_data();
    void begin();
    void condition_data();
    void condition();
    void meeting_data();
    void meeting();
    void loggedEventIsItsCondition_data();
    void loggedEventIsItsCondition();
    void walk_data();
    void walk();
    void stateThatHoldsAlreadyWaitsForNext();
    void newStartTakesTheWalkOver();
    void ownTutorialCanBeWalked();
    void messageIsOneLine();
    void windowsAreRead();
    void options_data();
    void options();
};

namespace
{
// Two folders, one in the other, a prohibited step, and jumps in both directions:
//     1 folder { 2, 3 folder { 4, 5 prohibited } }  6 (jump 2, jumpNo 8)  7 (jumpNo 3)  8
const char *kScript = R"(var scenario = [
    {"id":1,"name":"first","folder":true,"children":[
        {"id":2,"name":"two","folder":false,"condition":"click"},
        {"id":3,"name":"second","folder":true,"children":[
            {"id":4,"name":"four","folder":false,"condition":"checked,Box,true"},
            {"id":5,"name":"five","folder":false,"condition":"click","prohibited":true}
        ]}
    ]},
    {"id":6,"name":"six","folder":false,"condition":"yesNo","jump":2,"jumpNo":8},
    {"id":7,"name":"seven","folder":false,"condition":"wait,1","jump":99,"jumpNo":3},
    {"id":8,"name":"eight","folder":false,"condition":"nonsense"}
];)";

HostScenario::Scenario scenario()
{
    return HostScenario::evaluate(QString::fromLatin1(kScript));
}

QStringList words(const char *text)
{
    const QString all = QString::fromLatin1(text);
    return all.isEmpty() ? QStringList() : all.split(QLatin1Char(' '));
}

int idAt(const HostScenario::Scenario &scenario, int index)
{
    return index == HostScenario::kNone ? HostScenario::kNone : scenario.steps.at(index).id;
}
} // namespace

void tst_HostScenario::scriptIsRun_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<int>("steps");
    QTest::addColumn<bool>("fails");

    QTest::newRow("empty array") << QStringLiteral("var scenario = [];") << 0 << false;
    QTest::newRow("one step") << QStringLiteral("var scenario = [{\"id\":1}];") << 1 << false;
    QTest::newRow("a script, no JSON") << QStringLiteral("var a = {id: 1}; var scenario = [a].concat([a]);") << 2
                                       << false;
    QTest::newRow("syntax error") << QStringLiteral("var scenario = [{];") << 0 << true;
    QTest::newRow("unknown function") << QStringLiteral("var scenario = [qsTr(\"#1\")];") << 0 << true;
    QTest::newRow("no array") << QStringLiteral("var scenario = {};") << 0 << true;
    QTest::newRow("no scenario") << QString() << 0 << true;
}

void tst_HostScenario::scriptIsRun()
{
    QFETCH(QString, script);
    const HostScenario::Scenario scenario = HostScenario::evaluate(script);
    QTEST(scenario.steps.size(), "steps");
    QTEST(!scenario.error.isEmpty(), "fails");
}

void tst_HostScenario::stepKeepsItsFields()
{
    const auto scenario = HostScenario::evaluate(QStringLiteral(
        "var scenario = [{\"id\":7,\"name\":\"項目\",\"folder\":false,\"x\":-12,\"y\":34,\"windowKey\":\"Main\","
        "\"condition\":\"yesNo\",\"hint\":\"a\\n\\\"b\\\"\",\"icon\":\"wait\",\"jump\":8,\"jumpNo\":9,"
        "\"command\":\"\",\"showArrow\":false,\"prohibited\":true}, {\"id\":8}];"));
    const HostScenario::Step &step = scenario.steps.at(0);
    QCOMPARE(step.id, 7);
    QCOMPARE(step.name, QStringLiteral("項目"));
    QCOMPARE(QPoint(step.x, step.y), QPoint(-12, 34));
    QVERIFY(step.hasPlace());
    QCOMPARE(step.windowKey, QStringLiteral("Main"));
    QCOMPARE(step.hint, QStringLiteral("a\n\"b\""));
    QCOMPARE(HostScenario::iconNumber(step.icon), 4);
    QCOMPARE(step.jump, 8);
    QCOMPARE(step.jumpNo, 9);
    QVERIFY(!step.showArrow);
    QVERIFY(step.prohibited);

    const HostScenario::Step &bare = scenario.steps.at(1);
    QVERIFY(!bare.hasPlace());
    QVERIFY(bare.showArrow);
    QVERIFY(!bare.prohibited);
    QCOMPARE(bare.jump, HostScenario::kNone);
}

void tst_HostScenario::order_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<bool>("no");
    QTest::addColumn<int>("to");

    QTest::newRow("into a folder") << 2 << false << 4;
    QTest::newRow("over a prohibited step") << 4 << false << 6;
    QTest::newRow("jump back") << 6 << false << 2;
    QTest::newRow("jump on No") << 6 << true << 8;
    QTest::newRow("jump to an unknown id goes on") << 7 << false << 8;
    QTest::newRow("jump to a folder") << 7 << true << 4;
    QTest::newRow("No without a jump goes on") << 2 << true << 4;
    QTest::newRow("behind the last") << 8 << false << HostScenario::kNone;
}

void tst_HostScenario::order()
{
    QFETCH(int, from);
    QFETCH(bool, no);
    const HostScenario::Scenario all = scenario();
    QTEST(idAt(all, HostScenario::nextIndex(all, all.indexById.value(from), no)), "to");
}

void tst_HostScenario::begin_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<int>("first");

    QTest::newRow("from the beginning") << HostScenario::kNone << 2;
    QTest::newRow("a step") << 7 << 7;
    QTest::newRow("a folder") << 3 << 4;
    QTest::newRow("a prohibited step") << 5 << 6;
    QTest::newRow("an unknown id") << 99 << 2;
}

void tst_HostScenario::begin()
{
    QFETCH(int, id);
    const HostScenario::Scenario all = scenario();
    QTEST(idAt(all, HostScenario::startIndex(all, id)), "first");
    QCOMPARE(HostScenario::startIndex(HostScenario::Scenario(), id), HostScenario::kNone);
}

void tst_HostScenario::condition_data()
{
    using Waits = StepCondition::Waits;
    QTest::addColumn<QString>("text");
    QTest::addColumn<Waits>("waits");
    QTest::addColumn<bool>("understood");

    const auto row = [](const char *text, Waits waits) {
        QTest::newRow(text) << QString::fromLatin1(text) << waits << true;
    };
    row("click", Waits::ForNext);
    row("click,", Waits::ForNext);
    row("yesNo", Waits::ForAnswer);
    row("wait,250", Waits::ForTime);
    row("click,Main/box", Waits::ForEvent);
    row("action,quit", Waits::ForEvent);
    row("windowState,Dialog,hide", Waits::ForEvent);
    row("list, Main/list , 0", Waits::ForEvent);
    row("mouseEvent,Main/canvas,drag", Waits::ForEvent);

    const auto unknown = [](const char *text) {
        QTest::newRow(text) << QString::fromLatin1(text) << Waits::ForNext << false;
    };
    unknown("");
    unknown("Click");
    unknown("wait");
    unknown("wait,-1");
    unknown("wait,soon");
    unknown("popup");
    unknown("windowState,Dialog,maximised");
    unknown("windowState,Dialog");
    unknown("spinBox,Main/spin,");
    unknown("checked,Main/box,1");
    unknown("mouseEvent,Main/canvas,wheel");
}

void tst_HostScenario::condition()
{
    QFETCH(QString, text);
    const StepCondition condition = parseCondition(text);
    QTEST(condition.waits, "waits");
    QTEST(condition.understood, "understood");
}

void tst_HostScenario::meeting_data()
{
    QTest::addColumn<QString>("condition");
    QTest::addColumn<QString>("event");
    QTest::addColumn<bool>("met");

    const auto row = [](const char *condition, const char *event, bool met) {
        QTest::addRow("%s by %s", condition, event)
            << QString::fromLatin1(condition) << QString::fromLatin1(event) << met;
    };
    row("click,a", "click,a,", true);
    row("click,a", "click,b,", false);
    row("click,a", "pressed,a,", false);
    row("click", "click,,", false);
    row("list,a,1", "list,a,1", true);
    row("list,a,1", "list,a,10", false);
    row("textLength,a,3", "textLength,a,2", false);
    row("textLength,a,3", "textLength,a,3", true);
    row("textLength,a,3", "textLength,a,12", true);
    row("windowState,a,hide", "windowState,a,show", false);
    row("popup,a", "popup,a,", true);
}

void tst_HostScenario::meeting()
{
    QFETCH(QString, condition);
    QFETCH(QString, event);
    const QStringList fields = event.split(QLatin1Char(','));
    QTEST(isMetBy(parseCondition(condition), { fields.at(0), fields.at(1), fields.at(2) }), "met");
}

void tst_HostScenario::loggedEventIsItsCondition_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");

    const auto row = [](const char *kind, const char *key, const char *value) {
        QTest::newRow(kind) << QString::fromLatin1(kind) << QString::fromLatin1(key) << QString::fromLatin1(value);
    };
    row("click", "MainWindow/toolRectangle", "");
    row("action", "a<b>&c", "");
    row("windowState", "SettingsDialog", "show");
    row("textLength", "MainWindow/nameField", "4");
    row("checked", "MainWindow/gridCheck", "true");
    row("mouseEvent", "MainWindow/canvas", "drag");
}

void tst_HostScenario::loggedEventIsItsCondition()
{
    QFETCH(QString, kind);
    QFETCH(QString, key);
    QFETCH(QString, value);
    const HostEvent event = { kind, key, value };
    const StepCondition condition =
        parseCondition(QTextDocumentFragment::fromHtml(EventLog::line(event)).toPlainText());
    QVERIFY(condition.understood);
    QVERIFY(isMetBy(condition, event));
    QVERIFY(!isMetBy(condition, { kind, key + QLatin1Char('2'), value }));
}

void tst_HostScenario::walk_data()
{
    QTest::addColumn<int>("startId");
    // What is done at a step, and the step that it leads to; the same step when it changes nothing.
    QTest::addColumn<QVector<QPair<QString, int>>>("inputs");

    const QString next = QStringLiteral("next");
    const QString yes = QStringLiteral("yes");
    const QString no = QStringLiteral("no");
    const QString box = QStringLiteral("box");
    using Inputs = QVector<QPair<QString, int>>;
    QTest::newRow("a question loops until No")
        << 2 << Inputs{ { next, 4 }, { box, 6 }, { yes, 2 }, { next, 4 }, { box, 6 }, { no, 8 } };
    QTest::newRow("the wrong input changes nothing") << 2 << Inputs{ { yes, 2 },  { no, 2 },  { box, 2 }, { next, 4 },
                                                                     { next, 4 }, { yes, 4 }, { box, 6 }, { next, 6 } };
    QTest::newRow("a wait ends by itself") << 7 << Inputs{ { QString(), 8 }, { yes, 8 } };
}

void tst_HostScenario::walk()
{
    QFETCH(int, startId);
    using Inputs = QVector<QPair<QString, int>>;
    QFETCH(Inputs, inputs);
    ScenarioWalker walker([](const StepCondition &) { return false; });
    QSignalSpy leaving(&walker, &ScenarioWalker::leaving);
    QSignalSpy finished(&walker, &ScenarioWalker::finished);
    walker.start(scenario(), startId);
    int current = startId;
    for (const auto &input : inputs) {
        leaving.clear();
        if (input.first == QLatin1String("box"))
            walker.handleEvent({ QStringLiteral("checked"), QStringLiteral("Box"), QStringLiteral("true") });
        else if (!input.first.isEmpty())
            walker.handleButton(input.first);
        QTRY_COMPARE(walker.step().id, input.second);
        QCOMPARE(leaving.count(), input.second == current ? 0 : 1);
        current = input.second;
    }
    if (current == 8) {
        walker.handleButton(QStringLiteral("next"));
        QTRY_COMPARE(finished.count(), 1);
        QVERIFY(!walker.isRunning());
    }
}

void tst_HostScenario::stateThatHoldsAlreadyWaitsForNext()
{
    bool boxChecked = true;
    ScenarioWalker walker([&](const StepCondition &) { return boxChecked; });
    walker.start(scenario(), 4);
    QCOMPARE(walker.flags(), int(HostScenario::kNextFlag | HostScenario::kArrowFlag));
    boxChecked = false;
    walker.start(scenario(), 4);
    QCOMPARE(walker.flags(), int(HostScenario::kArrowFlag));
    walker.start(scenario(), 6);
    QCOMPARE(walker.flags(), int(HostScenario::kYesNoFlag | HostScenario::kArrowFlag));
}

void tst_HostScenario::newStartTakesTheWalkOver()
{
    ScenarioWalker walker([](const StepCondition &) { return false; });
    walker.start(scenario(), 2);
    walker.handleButton(QStringLiteral("next"));
    // The step is being left when the new start comes.
    walker.start(scenario(), 8);
    QSignalSpy entered(&walker, &ScenarioWalker::entered);
    QVERIFY(!entered.wait(250));
    QCOMPARE(walker.step().id, 8);
    walker.moveStep(5, 6, QStringLiteral("Other"));
    QCOMPARE(walker.step().windowKey, QStringLiteral("Other"));
    QCOMPARE(walker.step().x, 5);
}

// The tutorial of the stand-in's own window: each answer leads to the end, each condition is known.
void tst_HostScenario::ownTutorialCanBeWalked()
{
    QFile file(QStringLiteral(":/qml/Tutorial/TutorialSideViewStep0.js"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString script = QString::fromUtf8(file.readAll());
    const HostScenario::Scenario all =
        HostScenario::evaluate(QStringLiteral("function qsTr(key) { return key; }\n") + script);
    QCOMPARE(all.error, QString());
    QVERIFY(all.steps.size() >= 20);
    for (const HostScenario::Step &step : all.steps) {
        QVERIFY2(parseCondition(step.condition).understood, qPrintable(step.name));
        QVERIFY2(HostScenario::iconNumber(step.icon) < 6, qPrintable(step.name));
        for (const int target : { step.jump, step.jumpNo })
            QVERIFY2(target == HostScenario::kNone || all.indexById.contains(target), qPrintable(step.name));
    }
    // No is the answer that repeats a part here, so it is given but once to each question.
    for (const bool noFirst : { false, true }) {
        QSet<int> asked;
        int index = HostScenario::startIndex(all, HostScenario::kNone);
        int count = 0;
        for (; index != HostScenario::kNone; ++count) {
            QVERIFY(count < 100);
            const bool no = noFirst && !asked.contains(index);
            asked.insert(index);
            index = HostScenario::nextIndex(all, index, no && all.steps.at(index).condition == QLatin1String("yesNo"));
        }
    }
}

void tst_HostScenario::messageIsOneLine()
{
    QCOMPARE(Transcript::printable(QStringLiteral("start\x01"
                                                  "a\nb\x01")),
             QStringLiteral("start | a\\nb | "));
    const QString shortened = Transcript::printable(QString(5000, QLatin1Char('x')));
    QVERIFY(shortened.size() < 200);
    QVERIFY(shortened.contains(QStringLiteral("5000 characters")));
}

void tst_HostScenario::windowsAreRead()
{
    const QVector<QRect> windows =
        ProgramWindows::parse(QStringLiteral("WINDOW=1\nX=10\nY=20\nWIDTH=640\nHEIGHT=480\nSCREEN=0\n"
                                             "WINDOW=2\nX=194\nY=-5\nWIDTH=64\nHEIGHT=32\nSCREEN=0\n"
                                             "WINDOW=3\nX=138\nY=-5\nWIDTH=64\nHEIGHT=32\nSCREEN=0\n"));
    QCOMPARE(windows.size(), 3);
    QCOMPARE(windows.at(0), QRect(10, 20, 640, 480));
    const QVector<QRect> buttons{ QRect(138, -5, 64, 32), QRect(194, -5, 64, 32) };
    QCOMPARE(ProgramWindows::buttons(windows), buttons);
    QVERIFY(ProgramWindows::parse(QStringLiteral("X=1\nno window\n")).isEmpty());
}

void tst_HostScenario::options_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<QString>("tutorial");

    const auto row = [](const char *arguments, bool valid, const char *tutorial) {
        QTest::newRow(arguments) << words(arguments) << valid << QString::fromLatin1(tutorial);
    };
    row("", true, "TutorialSideViewStep0");
    row("--author", true, "");
    row("--author --tutorial A", true, "A");
    row("--auto --answer both --delay 0 --exit-after 9 --locale ja_JP", true, "TutorialSideViewStep0");
    row("--no-program --suffix a.b-1", true, "TutorialSideViewStep0");
    row("--no-program --author", false, "");
    row("--program", false, "");
    row("--program /no/such/program", false, "");
    row("--delay soon", false, "");
    row("--exit-after -3", false, "");
    row("--answer maybe", false, "");
    row("--locale fr_FR", false, "");
    row("--suffix ../x", false, "");
    row("--unknown", false, "");
    row("stray", false, "");
}

void tst_HostScenario::options()
{
    QFETCH(QStringList, arguments);
    QFETCH(bool, valid);
    const HostOptions options = parseOptions(QStringList(QStringLiteral("/opt/bin/trelvane-host")) + arguments);
    QCOMPARE(options.error.isEmpty(), valid);
    if (valid)
        QTEST(options.tutorial, "tutorial");
}

QTEST_MAIN(tst_HostScenario)
#include "tst_HostScenario.moc"
