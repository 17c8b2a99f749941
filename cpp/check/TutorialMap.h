#pragma once

#include "check/Problem.h"
#include "model/TreeItem.h"
#include "model/TutorialItemData.h"

#include <QVector>

class StepGraph;
class Walk;

/// A picture of a tutorial, as a text for Graphviz: steps and folders as boxes from top to bottom in the order of the
/// tree, arrows to where each answer leads. What has a problem has a sign and a colour, what no way reaches is grey and
/// dashed, what is prohibited is dotted.
namespace TutorialMap
{
/// A step's node is named "#" and its id. The graph and the walk are those of the document.
QString dot(const TreeDataTemplate<TutorialItemData> &document, const StepGraph &graph, const Walk &walk,
            const QVector<Problem> &problems, const QString &title);
} // namespace TutorialMap
