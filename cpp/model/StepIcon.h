#pragma once

#include <QString>
#include <QStringList>

/// The icons that a step can show, by the names that its record and the scenario file have for them.
namespace StepIcon
{
/// In the order of the numbers that the link has for them.
const QStringList &names();

/// The picture of an icon by its number, or an empty text for a number that has none.
QString picture(int number);
} // namespace StepIcon
