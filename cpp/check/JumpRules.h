#pragma once

#include "check/Problem.h"

#include <QVector>

class StepGraph;

/// What is wrong with where the steps lead.
namespace JumpRules
{
/// In the order of the steps. Without a file and lines, which whoever asks knows.
QVector<Problem> check(const StepGraph &graph);
} // namespace JumpRules
