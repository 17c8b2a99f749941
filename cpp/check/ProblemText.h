#pragma once

#include "check/Problem.h"

#include <QJsonObject>
#include <QString>

/// Problems as they are shown, as functions without state.
namespace ProblemText
{
/// In the language of the texts.
QString severity(Problem::Severity severity);

/// The item by its name and id, empty for the tutorial as a whole.
QString item(const Problem &problem);

/// One line: "file:line: severity: item: text [rule]", where the severity is "error", "warning" or "remark". The number
/// of the line is left out where it is not known.
QString line(const Problem &problem);

/// The same as an object. The id is null for the tutorial as a whole.
QJsonObject json(const Problem &problem);
} // namespace ProblemText
