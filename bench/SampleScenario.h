#pragma once

#include <QString>

namespace TutorialEditor
{
class Manager;
}

/// A tutorial of a given number of items, for the benchmarks: folders nested three deep, with ten
/// steps to a folder.
namespace SampleScenario
{
/// The text of its file, as the writer writes it.
QString fileText(int itemCount);

/// The same of a tutorial whose items are steps without a folder.
QString flatText(int itemCount);

/// Fills an empty document with the tutorial of fileText, in which every fifth step is a question with one answer that
/// leads some steps ahead or back, and no other step leads anywhere but on.
void addBranching(TutorialEditor::Manager &manager, int itemCount);

/// The hint of an item in a language.
QString hint(int id, const QString &locale);
} // namespace SampleScenario
