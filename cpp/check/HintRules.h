#pragma once

#include "check/Problem.h"

#include <QStringList>
#include <QVector>

class StepGraph;
struct CheckSubject;

/// What is wrong with the hints. One of a step that is passed over may be half written, and is not looked at.
namespace HintRules
{
/// In the order of the steps. A problem of one language has its translation source as the file.
QVector<Problem> check(const CheckSubject &subject, const StepGraph &graph);

/// All hints whose sizes count, for who measures them before a check.
QStringList hints(const CheckSubject &subject);
} // namespace HintRules
