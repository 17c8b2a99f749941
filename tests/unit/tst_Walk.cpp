#include "check/StepGraph.h"
#include "check/StepRanges.h"
#include "check/Walk.h"
#include "check/WalkRules.h"
#include "HostScenario.h"
#include "StepCondition.h"
#include "support/SketchedTutorial.h"

#include <QtTest>

#include <functional>
#include <random>

/// The ways through a tutorial, compared with those that the stand-in host editor goes.
class tst_Walk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The writer's log has each tutorial.
    void initTestCase() { QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false")); }
    void goesAsTheHostEditor();
    void countsWithoutALimit();
    void problems();
};

namespace
{
/// A tutorial in the stand-in's hands: every answer is tried, without any cleverness.
class HostWalk
{
public:
    explicit HostWalk(const QString &script) : mScenario(HostScenario::evaluate(script)) { }

    const QVector<HostScenario::Step> &steps() const { return mScenario.steps; }
    int first() const { return HostScenario::firstAllowed(mScenario, 0); }

    QSet<int> exits(int step) const
    {
        QSet<int> exits{ HostScenario::nextIndex(mScenario, step, false) };
        if (parseCondition(steps().at(step).condition).waits == StepCondition::Waits::ForAnswer)
            exits.insert(HostScenario::nextIndex(mScenario, step, true));
        return exits;
    }

    /// The number of answers to each step that can be met from there, the step itself only by a circle.
    QMap<int, int> answersTo(int from) const
    {
        QMap<int, int> answers;
        QSet<int> current{ from };
        for (int count = 1; !current.isEmpty(); ++count) {
            QSet<int> next;
            for (const int step : current) {
                for (const int exit : exits(step)) {
                    if (exit == HostScenario::kNone || answers.contains(exit))
                        continue;
                    answers.insert(exit, count);
                    next.insert(exit);
                }
            }
            current = next;
        }
        return answers;
    }

    /// Goes each way to its end, if none leads in a circle.
    void goEachWay(int step, int length, int &count) const
    {
        for (const int exit : exits(step)) {
            if (exit == HostScenario::kNone)
                ++count;
            else
                goEachWay(exit, length + 1, count);
        }
    }

    /// The most different steps that are met before the tutorial is over; 0 if it never is.
    int mostSteps() const
    {
        int most = 0;
        QSet<QPair<int, int>> seen; // a step, and all that were met with it, by bits
        std::function<void(int, int)> visit = [&](int step, int before) {
            const int met = before | 1 << step;
            if (seen.contains({ step, met }))
                return;
            seen.insert({ step, met });
            for (const int exit : exits(step)) {
                if (exit == HostScenario::kNone)
                    most = qMax(most, int(qPopulationCount(quint32(met))));
                else
                    visit(exit, met);
            }
        };
        visit(first(), 0);
        return most;
    }

private:
    HostScenario::Scenario mScenario;
};

QString randomSketch(std::mt19937 &random)
{
    const auto below = [&](unsigned limit) { return random() % limit; };
    QString sketch;
    int depth = 0;
    const unsigned count = 1 + below(9);
    for (unsigned id = 1; id <= count; ++id) {
        // Now and then two items have one id.
        sketch += QString::number(below(10) == 0 ? 1 + below(id) : id);
        if (below(2) == 0)
            sketch += QLatin1Char('?');
        if (below(6) == 0)
            sketch += QLatin1Char('!');
        if (below(3) == 0)
            sketch += QStringLiteral(">%1").arg(1 + below(count + 1));
        if (below(3) == 0)
            sketch += QStringLiteral("/%1").arg(1 + below(count + 1));
        if (below(4) == 0) {
            sketch += QLatin1Char('(');
            ++depth;
        }
        for (; depth > 0 && below(3) == 0; --depth)
            sketch += QLatin1Char(')');
        sketch += QLatin1Char(' ');
    }
    return sketch + QString(depth, QLatin1Char(')'));
}

QString compare(const SketchedTutorial &tutorial, int &acyclicCount)
{
    const HostWalk host(tutorial.script());
    const StepGraph graph(tutorial.document());
    const Walk walk(graph);
    if (graph.steps().size() != host.steps().size() || graph.first() != host.first())
        return QStringLiteral("steps");
    if (host.first() == HostScenario::kNone)
        return walk.reachedCount() == 0 ? QString() : QStringLiteral("nothing is shown");

    QMap<int, int> shortest = host.answersTo(host.first());
    shortest[host.first()] = 0;
    QVector<int> ends;
    QVector<QVector<int>> circles;
    QVector<bool> left;
    QSet<int> grouped;
    for (int i = 0; i < host.steps().size(); ++i) {
        const bool reached = shortest.contains(i);
        if (walk.isReached(i) != reached || walk.shortest(i) != (reached ? shortest.value(i) + 1 : 0))
            return QStringLiteral("shortest of #%1").arg(host.steps().at(i).id);
        const QVector<int> way = walk.shortestWay(i);
        if (way.size() != walk.shortest(i))
            return QStringLiteral("way");
        for (int k = 1; k < way.size(); ++k) {
            if (!host.exits(way.at(k - 1)).contains(way.at(k)))
                return QStringLiteral("way of #%1").arg(host.steps().at(i).id);
        }
        if (!reached)
            continue;
        if (host.exits(i).contains(HostScenario::kNone))
            ends.append(i);
        const QMap<int, int> onward = host.answersTo(i);
        if (!onward.contains(i) || grouped.contains(i))
            continue;
        QVector<int> circle;
        bool isLeft = false;
        for (auto other = onward.cbegin(); other != onward.cend(); ++other) {
            const bool isIn = host.answersTo(other.key()).contains(i);
            if (isIn)
                circle.append(other.key());
            isLeft = isLeft || !isIn || host.exits(other.key()).contains(HostScenario::kNone);
            if (isIn)
                grouped.insert(other.key());
        }
        circles.append(circle);
        left.append(isLeft);
    }
    if (walk.ends() != ends || walk.longest() != host.mostSteps() || walk.longestWay().size() != walk.longest())
        return QStringLiteral("ends");
    if (walk.circles().size() != circles.size())
        return QStringLiteral("number of circles");
    for (int i = 0; i < circles.size(); ++i) {
        if (walk.circles().at(i).steps != circles.at(i) || walk.circles().at(i).isLeft != left.at(i))
            return QStringLiteral("circle");
    }
    if (circles.isEmpty()) {
        int count = 0;
        host.goEachWay(host.first(), 1, count);
        if (walk.wayCount().text() != QString::number(count))
            return QStringLiteral("number of ways");
        ++acyclicCount;
    }
    return QString();
}
} // namespace

void tst_Walk::goesAsTheHostEditor()
{
    std::mt19937 random(1);
    int acyclicCount = 0;
    for (int i = 0; i < 1500; ++i) {
        const QString sketch = randomSketch(random);
        const QString difference = compare(SketchedTutorial(sketch), acyclicCount);
        QVERIFY2(difference.isEmpty(), qPrintable(sketch + QLatin1String(": ") + difference));
    }
    QVERIFY(acyclicCount > 300);
}

void tst_Walk::countsWithoutALimit()
{
    // After each question one of two steps, and then a circle of all that is there.
    QString sketch;
    const int questions = 20000;
    for (int i = 0; i < questions; ++i)
        sketch += QStringLiteral("%1?/%2 %3>%4 %2 ").arg(3 * i + 1).arg(3 * i + 3).arg(3 * i + 2).arg(3 * i + 4);
    const SketchedTutorial tutorial(sketch);
    const StepGraph graph(tutorial.document());
    const Walk walk(graph);
    QCOMPARE(walk.wayCount().text(), QStringLiteral("3.98e6020")); // the power of two
    QCOMPARE(walk.longest(), 2 * questions + 1); // The last jump leads nowhere.

    const SketchedTutorial circle(sketch + QStringLiteral("%1>1").arg(3 * questions + 1));
    const StepGraph circleGraph(circle.document());
    const Walk endless(circleGraph);
    QCOMPARE(endless.wayCount().text(), QStringLiteral("0"));
    QCOMPARE(endless.circles().size(), 1);
    QCOMPARE(endless.circles().first().steps.size(), 3 * questions + 1);
}

void tst_Walk::problems()
{
    struct Row
    {
        const char *name;
        const char *sketch;
        const char *expected;
        QSet<int> reachedAtSave;
    };
    const Row rows[] = {
        { "a run over the end of a folder", "1>19 2(13 4! 5) 16 19", "step-unreached@13#16", {} },
        { "all prohibited", "1>9 2(3! 4!) 9", "", {} },
        { "lost since the save", "1>9 2 3 4 9", "step-unreached@2 step-lost@3 step-unreached@4", { 3, 7 } },
        { "circle", "1 2?/36 13 4! 14 15>20 17 20>13 36", "circle-unleft@13#13–#15,#20 step-unreached@17", {} },
        { "circle that is left", "1 2?/4 3>1 4", "", {} },
        { "question that leads on", "1 2?>1 3", "", {} },
        { "to itself by its folder", "1(2>1) 3", "circle-unleft@2 step-unreached@3", {} },
        { "to itself", "1 2>2", "", {} },
        { "to itself in two ways", "1 2(3?>3/2)", "circle-unleft@3", {} },
    };
    for (const Row &row : rows) {
        const SketchedTutorial tutorial(QString::fromLatin1(row.sketch));
        const StepGraph graph(tutorial.document());
        QStringList found;
        for (const Problem &problem : WalkRules::check(graph, Walk(graph), row.reachedAtSave)) {
            // The steps that the text names.
            const auto named = QRegularExpression(QStringLiteral("#\\d.*\\d")).match(problem.text);
            found += problem.rule + QLatin1Char('@') + QString::number(problem.itemId)
                + named.captured().remove(QLatin1Char(' '));
        }
        QVERIFY2(found.join(QLatin1Char(' ')) == QString::fromUtf8(row.expected), row.name);
    }
}

QTEST_GUILESS_MAIN(tst_Walk)
#include "tst_Walk.moc"
