#pragma once

#include "check/Problem.h"

#include <QVector>

/// How a list of problems becomes another one.
namespace ProblemRows
{
/// By old row the new row of the same problem, or -1 where there is none. What is kept stands in the same order in
/// both, and comes and goes at a few places only. A problem is the same one while its item and its rule are.
QVector<int> targets(const QVector<Problem> &before, const QVector<Problem> &after);
} // namespace ProblemRows
