#pragma once

#include <QJsonObject>
#include <QString>

class StepGraph;
class Walk;

/// What a walk has found, for a reader. Of very many ends only the first ones have their ways; the text has the first
/// ones of all that is many.
namespace WalkReport
{
/// A few lines of words, each with a line end.
QString text(const StepGraph &graph, const Walk &walk);
/// {"steps", "shown", "reached": numbers, "unreached": ids, "ways": digits as a text, such as "4" or "1.41e1505",
/// "longest": {"steps", "way": ids}, "ends": [{"id", "name", "steps", "way": ids}], "circles": [{"steps": ids,
/// "left"}]}
QJsonObject json(const StepGraph &graph, const Walk &walk);
} // namespace WalkReport
