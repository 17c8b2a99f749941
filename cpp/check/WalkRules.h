#pragma once

#include "check/Problem.h"

#include <QSet>
#include <QVector>

class StepGraph;
class Walk;

/// What is wrong with the ways through a tutorial.
namespace WalkRules
{
/// In the order of the steps. Without a file and lines, which whoever asks knows. Steps in a row that no way reaches
/// are one problem, at the first of them. ReachedAtSave are the ids of the steps that a way reached when the tutorial
/// was saved; empty where that is not known.
QVector<Problem> check(const StepGraph &graph, const Walk &walk, const QSet<int> &reachedAtSave);
} // namespace WalkRules
