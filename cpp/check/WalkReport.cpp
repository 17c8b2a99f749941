#include "check/WalkReport.h"

#include "check/StepGraph.h"
#include "check/StepRanges.h"
#include "check/TutorialCheck.h"
#include "check/Walk.h"

#include <QJsonArray>

#include <functional>

namespace
{
// Each end has a way, and each way may have all steps.
constexpr int kEndsWithTheirWays = 20;
constexpr int kCirclesInText = 20;
constexpr int kRangesInText = 40;

QString listOf(const StepGraph &graph, const QVector<int> &steps)
{
    return StepRanges::text(graph, steps, QStringLiteral(", "), kRangesInText);
}

QString wayOf(const StepGraph &graph, const QVector<int> &steps)
{
    return StepRanges::text(graph, steps, QStringLiteral(" \u2192 "), kRangesInText);
}

QVector<int> stepsThat(const StepGraph &graph, const std::function<bool(int)> &holds)
{
    QVector<int> steps;
    for (int i = graph.first(); i != StepGraph::kEnd; i = graph.shownAfter(i)) {
        if (holds(i))
            steps.append(i);
    }
    return steps;
}

QVector<int> shownSteps(const StepGraph &graph)
{
    return stepsThat(graph, [](int) { return true; });
}

QVector<int> unreachedSteps(const StepGraph &graph, const Walk &walk)
{
    return stepsThat(graph, [&](int i) { return !walk.isReached(i); });
}

QJsonArray ids(const StepGraph &graph, const QVector<int> &steps)
{
    QJsonArray ids;
    for (const int i : steps)
        ids.append(graph.steps().at(i).id);
    return ids;
}
} // namespace

QString WalkReport::text(const StepGraph &graph, const Walk &walk)
{
    QStringList lines;
    lines += TutorialCheck::tr("steps: %1, shown: %2, reached: %3")
                 .arg(graph.steps().size())
                 .arg(shownSteps(graph).size())
                 .arg(walk.reachedCount());
    const QVector<int> unreached = unreachedSteps(graph, walk);
    if (!unreached.isEmpty())
        lines += TutorialCheck::tr("reached by no way: %1").arg(listOf(graph, unreached));
    lines += TutorialCheck::tr("ways: %1").arg(walk.wayCount().text());
    if (walk.longest() > 0) {
        lines += TutorialCheck::tr("longest way, with %1 different steps: %2")
                     .arg(walk.longest())
                     .arg(wayOf(graph, walk.longestWay()));
    }
    const QVector<Walk::Circle> circles = walk.circles();
    for (const Walk::Circle &circle : circles.mid(0, kCirclesInText)) {
        const QString steps = listOf(graph, circle.steps);
        lines += circle.isLeft ? TutorialCheck::tr("circle: %1").arg(steps)
                               : TutorialCheck::tr("circle that no way leaves: %1").arg(steps);
    }
    if (circles.size() > kCirclesInText)
        lines += TutorialCheck::tr("and %1 more circles").arg(circles.size() - kCirclesInText);
    for (const int end : walk.ends().mid(0, kEndsWithTheirWays)) {
        const StepGraph::Step &step = graph.steps().at(end);
        lines += TutorialCheck::tr("end: #%1 %2, shortest way, with %3 steps: %4")
                     .arg(QString::number(step.id), step.record->mName, QString::number(walk.shortest(end)),
                          wayOf(graph, walk.shortestWay(end)));
    }
    if (walk.ends().size() > kEndsWithTheirWays)
        lines += TutorialCheck::tr("and %1 more ends").arg(walk.ends().size() - kEndsWithTheirWays);
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

QJsonObject WalkReport::json(const StepGraph &graph, const Walk &walk)
{
    QJsonArray ends;
    for (const int end : walk.ends()) {
        const StepGraph::Step &step = graph.steps().at(end);
        QJsonObject entry{ { QStringLiteral("id"), step.id },
                           { QStringLiteral("name"), step.record->mName },
                           { QStringLiteral("steps"), walk.shortest(end) } };
        if (ends.size() < kEndsWithTheirWays)
            entry.insert(QStringLiteral("way"), ids(graph, walk.shortestWay(end)));
        ends.append(entry);
    }
    QJsonArray circles;
    for (const Walk::Circle &circle : walk.circles())
        circles.append(QJsonObject{ { QStringLiteral("steps"), ids(graph, circle.steps) },
                                    { QStringLiteral("left"), circle.isLeft } });
    return { { QStringLiteral("steps"), graph.steps().size() },
             { QStringLiteral("shown"), shownSteps(graph).size() },
             { QStringLiteral("reached"), walk.reachedCount() },
             { QStringLiteral("unreached"), ids(graph, unreachedSteps(graph, walk)) },
             { QStringLiteral("ways"), walk.wayCount().text() },
             { QStringLiteral("longest"),
               QJsonObject{ { QStringLiteral("steps"), walk.longest() },
                            { QStringLiteral("way"), ids(graph, walk.longestWay()) } } },
             { QStringLiteral("ends"), ends },
             { QStringLiteral("circles"), circles } };
}
