#include "check/TutorialCheck.h"

#include "check/CheckSubject.h"
#include "check/JumpRules.h"
#include "check/StepGraph.h"

QVector<Problem> TutorialCheck::check(const CheckSubject &subject)
{
    const StepGraph graph(*subject.document);
    return JumpRules::check(graph);
}
