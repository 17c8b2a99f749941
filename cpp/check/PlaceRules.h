#pragma once

#include "check/Problem.h"

#include <QVector>

class StepGraph;
struct CheckSubject;

/// What is wrong with what a step points at, and with its icon. A step that is passed over is not looked at.
namespace PlaceRules
{
/// In the order of the steps.
QVector<Problem> check(const CheckSubject &subject, const StepGraph &graph);
} // namespace PlaceRules
