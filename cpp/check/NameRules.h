#pragma once

#include "check/Problem.h"

#include <QVector>

struct CheckSubject;

/// What is wrong with ids, names and the other short texts of steps and folders. A step that is passed over is looked
/// at, too: what is wrong here shows when the file is read again.
namespace NameRules
{
/// In the order of the tree.
QVector<Problem> check(const CheckSubject &subject);
} // namespace NameRules
