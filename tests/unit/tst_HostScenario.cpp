#include "ArrowAim.h"
#include "EventLog.h"
#include "HostScenario.h"
#include "HostSession.h"
#include "ScenarioWalker.h"
#include "StepCondition.h"

#include "Tutorial/guidance/GuidanceGeometry.h"

#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocumentFragment>

/// The decisions of the stand-in host editor: in which order a scenario's steps come, what ends each.
class tst_HostScenario : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void order();
    void meeting();
    void walk();
    void arrowTipStandsWhereTheStepPoints();
    void makesTheFolderOfTheLog();
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
} // namespace

void tst_HostScenario::order()
{
    const HostScenario::Scenario all = scenario();
    const auto idAt = [&all](int index) { return index == HostScenario::kNone ? -1 : all.steps.at(index).id; };
    const auto after = [&](int id, bool no) { return idAt(HostScenario::nextIndex(all, all.indexById.value(id), no)); };
    const QMap<int, int> next{ { 2, 4 }, { 4, 6 }, { 6, 2 }, { 7, 8 }, { 8, -1 } };
    for (auto step = next.cbegin(); step != next.cend(); ++step)
        QCOMPARE(after(step.key(), false), step.value());
    QCOMPARE(after(2, true), 4);
    QCOMPARE(after(6, true), 8);
    QCOMPARE(after(7, true), 4);

    const QMap<int, int> starts{ { HostScenario::kNone, 2 }, { 7, 7 }, { 3, 4 }, { 5, 6 }, { 99, 2 } };
    for (auto start = starts.cbegin(); start != starts.cend(); ++start)
        QCOMPARE(idAt(HostScenario::startIndex(all, start.key())), start.value());
    QCOMPARE(HostScenario::startIndex(HostScenario::Scenario(), 7), HostScenario::kNone);
    QVERIFY(!HostScenario::evaluate(QStringLiteral("var scenario = [{];")).error.isEmpty());
}

void tst_HostScenario::meeting()
{
    // The log's line, as the author copies it, is the condition that the event meets.
    const QString key = QStringLiteral("a<b>&c");
    const HostEvent event = { QStringLiteral("textLength"), key, QStringLiteral("4") };
    const StepCondition condition =
        parseCondition(QTextDocumentFragment::fromHtml(EventLog::line(event)).toPlainText());
    QVERIFY(isMetBy(condition, event));
    QVERIFY(isMetBy(condition, { event.kind, key, QStringLiteral("12") }));
    QVERIFY(!isMetBy(condition, { event.kind, key, QStringLiteral("3") }));
    QVERIFY(!isMetBy(condition, { event.kind, key + QLatin1Char('2'), event.value }));
    QVERIFY(!isMetBy(condition, { QStringLiteral("list"), key, event.value }));
    const HostEvent tenth = { QStringLiteral("list"), key, QStringLiteral("10") };
    QVERIFY(!isMetBy(parseCondition(QStringLiteral("list,%1,1").arg(key)), tenth));
}

void tst_HostScenario::walk()
{
    ScenarioWalker walker([](const StepCondition &) { return false; });
    QSignalSpy finished(&walker, &ScenarioWalker::finished);
    walker.start(scenario(), 2);
    // What is done, and the step that it leads to; the same step when it is not what the step waits for.
    const QVector<QPair<const char *, int>> inputs{ { "yes", 2 },  { "box", 2 }, { "next", 4 }, { "next", 4 },
                                                    { "box", 6 },  { "yes", 2 }, { "next", 4 }, { "box", 6 },
                                                    { "next", 6 }, { "no", 8 } };
    for (const auto &input : inputs) {
        if (qstrcmp(input.first, "box") == 0)
            walker.handleEvent({ QStringLiteral("checked"), QStringLiteral("Box"), QStringLiteral("true") });
        else
            walker.handleButton(QString::fromLatin1(input.first));
        QTRY_COMPARE(walker.step().id, input.second);
    }
    walker.handleButton(QStringLiteral("next"));
    QTRY_COMPARE(finished.count(), 1);
    walker.start(scenario(), 7); // its wait ends by itself
    QTRY_COMPARE(walker.step().id, 8);
}

// Also where the program turns the arrow upside down.
void tst_HostScenario::arrowTipStandsWhereTheStepPoints()
{
    const int tipInWindow = 133;
    ArrowAim aim;
    GuidanceGeometry::Flips flips{ false, false };
    for (const int y : { 300, 0, 64, -1, 0, 64, 65, 64, 26, -100, 64, 92, 0, -20, 300 }) {
        const QPoint sent = aim.aimAt({ 100, y });
        flips = GuidanceGeometry::decideFlips(sent, QRect(0, 0, 1000, 700), flips);
        const int tip = flips.vertical ? GuidanceGeometry::kArrowSize - tipInWindow : tipInWindow;
        QCOMPARE(GuidanceGeometry::restingPlace(sent, flips) + QPoint(0, tip), QPoint(100, y + tipInWindow));
    }
}

void tst_HostScenario::makesTheFolderOfTheLog()
{
    const QTemporaryDir home;
    qputenv("XDG_DATA_HOME", QFile::encodeName(home.filePath(QStringLiteral("data"))));
    HostOptions options;
    options.suffix = QStringLiteral("-folder-%1").arg(QCoreApplication::applicationPid());
    options.program = QStringLiteral("true");
    HostSession session(options);
    QCOMPARE(session.begin(), QString());
    QCoreApplication::setOrganizationName(QStringLiteral("Harnwick"));
    QCoreApplication::setApplicationName(QStringLiteral("Trelvane"));
    QVERIFY(QDir(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation)).exists());
}

QTEST_MAIN(tst_HostScenario)
#include "tst_HostScenario.moc"
