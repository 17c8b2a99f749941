#include "HostScenario.h"
#include "ScenarioWalker.h"
#include "StepCondition.h"

#include <QSignalSpy>
#include <QTest>

using namespace HostMessages;

/// The decisions of the stand-in host editor: in which order a scenario's steps come.
class tst_HostScenario : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void walk();
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

const QLatin1String kBox("Box");
} // namespace

void tst_HostScenario::walk()
{
    const HostScenario::Scenario scenario = HostScenario::evaluate(QString::fromLatin1(kScript));
    ScenarioWalker walker([](const StepCondition &) { return false; });
    QSignalSpy finished(&walker, &ScenarioWalker::finished);
    const QMap<int, int> starts{ { HostScenario::kNone, 2 }, { 7, 7 }, { 3, 4 }, { 5, 6 }, { 99, 2 } };
    for (auto start = starts.cbegin(); start != starts.cend(); ++start) {
        walker.start(scenario, start.key());
        QCOMPARE(walker.step().id, start.value());
    }
    walker.start(scenario, 2);
    // What is done, and the step that it leads to; the same step when it is not what the step waits for.
    const QVector<QPair<QLatin1String, int>> inputs{ { ToHost::kYes, 2 },  { kBox, 2 }, { ToHost::kNext, 4 },
                                                     { ToHost::kNext, 4 }, { kBox, 6 }, { ToHost::kYes, 2 },
                                                     { ToHost::kNext, 4 }, { kBox, 6 }, { ToHost::kNext, 6 },
                                                     { ToHost::kNo, 8 } };
    const QString checked = QStringLiteral("checked");
    for (const auto &input : inputs) {
        // Events that no step waits for.
        walker.handleEvent({ checked, kBox, QStringLiteral("false") });
        walker.handleEvent({ checked, QStringLiteral("Other"), QStringLiteral("true") });
        if (input.first == kBox)
            walker.handleEvent({ checked, kBox, QStringLiteral("true") });
        else
            walker.handleButton(input.first);
        QTRY_COMPARE(walker.step().id, input.second);
    }
    walker.handleButton(ToHost::kNext);
    QTRY_COMPARE(finished.count(), 1);
    walker.start(scenario, 7); // its wait ends by itself
    QTRY_COMPARE(walker.step().id, 8);
    QVERIFY(!HostScenario::evaluate(QStringLiteral("var scenario = [{];")).error.isEmpty());
}

QTEST_GUILESS_MAIN(tst_HostScenario)
#include "tst_HostScenario.moc"
