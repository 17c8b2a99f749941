#pragma once

#include "check/Problem.h"

#include <QJsonObject>
#include <QString>

/// Problems as a program prints them, as functions without state.
namespace ProblemText
{
/// One line: "file:line: severity: name (#id): text [rule]", where the severity is "error", "warning" or "remark". The
/// number of the line is left out where it is not known.
QString line(const Problem &problem);

/// The same as an object. The id is null for the tutorial as a whole.
QJsonObject json(const Problem &problem);
} // namespace ProblemText
