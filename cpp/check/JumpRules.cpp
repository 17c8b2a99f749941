#include "check/JumpRules.h"

#include "check/StepGraph.h"
#include "check/TutorialCheck.h"

namespace
{
using Target = StepGraph::Target;

const QString kJumpNo = QStringLiteral("jumpNo");

Problem problem(const StepGraph::Step &step, const char *rule, Problem::Severity severity, const QString &text,
                const QString &key)
{
    return { QString::fromLatin1(rule), severity, step.id, step.record->mName, text, QString(), 0, key };
}

void checkTarget(const StepGraph::Step &step, Target target, int id, const QString &branch, const QString &key,
                 QVector<Problem> &problems)
{
    const auto add = [&](const char *rule, Problem::Severity severity, const QString &text) {
        problems.append(problem(step, rule, severity, text, key));
    };
    switch (target) {
    case Target::None:
    case Target::Step:
        return;
    case Target::Itself:
        // The other answer leads on.
        add("jump-itself",
            step.asks && step.jump != step.jumpNo ? Problem::Severity::Warning : Problem::Severity::Error,
            TutorialCheck::tr("%1 leads to the step itself: choose another step, or none.").arg(branch));
        return;
    case Target::Missing:
        add("jump-missing", Problem::Severity::Error,
            TutorialCheck::tr("%1 leads to #%2, which is not there: choose a step that is.").arg(branch).arg(id));
        return;
    case Target::Prohibited:
        add("jump-prohibited", Problem::Severity::Warning,
            TutorialCheck::tr(
                "%1 leads to the prohibited step #%2, which is passed over: permit it, or choose another.")
                .arg(branch)
                .arg(id));
        return;
    case Target::Empty:
        add("jump-empty-folder", Problem::Severity::Warning,
            TutorialCheck::tr("%1 leads to the folder #%2, in which no step is shown: choose another one.")
                .arg(branch)
                .arg(id));
        return;
    }
}
} // namespace

QVector<Problem> JumpRules::check(const StepGraph &graph)
{
    QVector<Problem> problems;
    for (int i = 0; i < graph.steps().size(); ++i) {
        const StepGraph::Step &step = graph.steps().at(i);
        if (!graph.isShown(i))
            continue;
        checkTarget(step, step.jump, step.record->mJump, TutorialCheck::tr("The jump"), QStringLiteral("jump"),
                    problems);
        if (step.jumpNo == Target::None)
            continue;
        if (step.asks) {
            checkTarget(step, step.jumpNo, step.record->mJumpNo, TutorialCheck::tr("The jump after No"), kJumpNo,
                        problems);
        } else {
            problems.append(
                problem(step, "no-unasked", Problem::Severity::Warning,
                        TutorialCheck::tr("The jump after No is never taken, since the step asks no question: take it "
                                          "away, or make \"yesNo\" the condition."),
                        kJumpNo));
        }
    }
    return problems;
}
