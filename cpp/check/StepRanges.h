#pragma once

#include <QString>
#include <QVector>

class StepGraph;

/// Steps in a few words, such as "#2–#7, #9": what follows each other in the tree is told by its two ends.
namespace StepRanges
{
/// The steps are indices in the graph. After that many ranges an ellipsis stands for the others; 0 tells all.
QString text(const StepGraph &graph, const QVector<int> &steps, const QString &separator, int limit = 0);
} // namespace StepRanges
