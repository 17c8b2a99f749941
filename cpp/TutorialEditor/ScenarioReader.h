#pragma once

#include "model/TreeItem.h"
#include "model/TutorialItemData.h"
#include "tool/TextMap.h"
#include "TutorialEditor/LoadLosses.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

/// Reads a scenario file's content into records and their tree, as functions without state.
namespace ScenarioReader
{
/// The content as a text stream reads it, at once: what a byte order mark says, else UTF-8; a character cut short at
/// the end is left out.
QString decoded(const QByteArray &bytes);

/// The array of a script, without comments, its translation calls as they stand. A map is led on to the script.
QString arrayOf(QString text, TextMap *map = nullptr);

/// Adds the items of an array, whose translation calls are replaced, to an empty document, which then owns their
/// records. What the document lacks of them is told in leftOut, and who has no name gets one. False for what is no
/// array.
bool read(const QString &arrayText, TreeDataTemplate<TutorialItemData> &document, QStringList &leftOut,
          QVector<LoadLosses::Loss> *losses = nullptr);
} // namespace ScenarioReader
