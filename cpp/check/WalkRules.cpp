#include "check/WalkRules.h"

#include "check/StepGraph.h"
#include "check/StepRanges.h"
#include "check/TutorialCheck.h"
#include "check/Walk.h"

#include <algorithm>

namespace
{
using Severity = Problem::Severity;

/// A problem with the index of its step, by which it is sorted.
struct Found
{
    int index;
    Problem problem;
};

Found found(const StepGraph &graph, int index, const char *rule, Severity severity, const QString &text)
{
    const StepGraph::Step &step = graph.steps().at(index);
    return { index, { QString::fromLatin1(rule), severity, step.id, step.record->mName, text } };
}

QString unreachedText(const StepGraph &graph, int count, int last, bool isLost)
{
    if (count == 1) {
        return isLost ? TutorialCheck::tr("Since the last save no way reaches this step any more: let a step or a jump "
                                          "lead to it again, or prohibit it.")
                      : TutorialCheck::tr("No way reaches this step: let a step or a jump lead to it, or prohibit it.");
    }
    const QString text = isLost
        ? TutorialCheck::tr("Since the last save no way reaches the %1 steps from here to #%2 any more: let a step or "
                            "a jump lead to them again, or prohibit them.")
        : TutorialCheck::tr("No way reaches the %1 steps from here to #%2: let a step or a jump lead to them, or "
                            "prohibit them.");
    return text.arg(count).arg(graph.steps().at(last).id);
}

void findUnreached(const StepGraph &graph, const Walk &walk, const QSet<int> &lost, QVector<Found> &result)
{
    for (int i = graph.first(); i != StepGraph::kEnd;) {
        if (walk.isReached(i)) {
            i = graph.shownAfter(i);
            continue;
        }
        const int first = i;
        const bool isLost = lost.contains(graph.steps().at(first).id);
        int last;
        int count = 0;
        do {
            last = i;
            ++count;
            i = graph.shownAfter(i);
        } while (i != StepGraph::kEnd && !walk.isReached(i) && lost.contains(graph.steps().at(i).id) == isLost);
        result.append(found(graph, first, isLost ? "step-lost" : "step-unreached", Severity::Warning,
                            unreachedText(graph, count, last, isLost)));
    }
}

void findTraps(const StepGraph &graph, const Walk &walk, QVector<Found> &result)
{
    constexpr int kRangesInText = 8;
    for (const Walk::Circle &circle : walk.circles()) {
        if (circle.isLeft)
            continue;
        const int first = circle.steps.first();
        const StepGraph::Step &step = graph.steps().at(first);
        QString text;
        if (circle.steps.size() > 1) {
            text = TutorialCheck::tr(
                       "No way leads out of the circle of %1: let a jump or an answer lead to a step outside of it.")
                       .arg(StepRanges::text(graph, circle.steps, QStringLiteral(", "), kRangesInText));
        } else if (step.jump == StepGraph::Target::Itself && (!step.asks || step.jumpNo == StepGraph::Target::Itself)) {
            continue; // That each of its jumps leads to the step itself is a problem of its own.
        } else {
            text = TutorialCheck::tr("This step leads to itself again, by way of its jump: let the jump lead to "
                                     "another step.");
        }
        result.append(found(graph, first, "circle-unleft", Severity::Error, text));
    }
}
} // namespace

QVector<Problem> WalkRules::check(const StepGraph &graph, const Walk &walk, const QSet<int> &reachedAtSave)
{
    QVector<Found> result;
    findUnreached(graph, walk, walk.lostIds(reachedAtSave), result);
    findTraps(graph, walk, result);
    std::stable_sort(result.begin(), result.end(), [](const Found &a, const Found &b) { return a.index < b.index; });
    QVector<Problem> problems;
    if (graph.first() == StepGraph::kEnd && !graph.steps().isEmpty()) {
        problems.append({ QStringLiteral("no-step"), Severity::Warning, -1, QString(),
                          TutorialCheck::tr("All steps are prohibited, so that learners see none: permit one.") });
    }
    for (const Found &each : result)
        problems.append(each.problem);
    return problems;
}
