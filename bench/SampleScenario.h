#pragma once

#include <QString>

/// A tutorial of a given number of items, for the benchmarks: folders nested three deep, with ten
/// steps to a folder.
namespace SampleScenario
{
/// The text of its file, as the writer writes it.
QString fileText(int itemCount);

/// The same of a tutorial whose items are steps without a folder.
QString flatText(int itemCount);

/// The hint of an item in a language.
QString hint(int id, const QString &locale);
} // namespace SampleScenario
