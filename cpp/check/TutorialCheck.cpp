#include "check/TutorialCheck.h"

#include "check/CheckSubject.h"
#include "check/JumpRules.h"
#include "check/StepGraph.h"
#include "check/Walk.h"
#include "check/WalkRules.h"

QVector<Problem> TutorialCheck::check(const CheckSubject &subject)
{
    const StepGraph graph(*subject.document);
    const Walk walk(graph);
    return JumpRules::check(graph) + WalkRules::check(graph, walk, subject.reachedAtSave);
}
