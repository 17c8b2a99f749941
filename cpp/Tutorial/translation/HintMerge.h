#pragma once

#include "model/TreeItem.h"
#include "model/TutorialItemData.h"
#include "Tutorial/translation/TranslationSource.h"

#include <QSet>
#include <QString>
#include <QVector>

/// The hints of a tutorial's items and those of a translation source, as functions without state. In a source a hint
/// stands under a key made of its item's id; an item whose key the source lacks has the key as its hint.
namespace HintMerge
{
using Document = TreeDataTemplate<TutorialItemData>;
/// Which of an item's two hints.
using Hint = QString TutorialItemData::*;

struct Result
{
    /// The hints of all items in the order of the tree, as they are to be written.
    QVector<TranslationSource::Entry> entries;
    /// What others have written for a hint that was also edited here, and that is given up.
    QVector<TranslationSource::Entry> conflicts;
    /// The keys of the items that have taken over what others have written.
    QSet<QString> taken;
};

/// Brings the items together with what the source on disk says now; `before` is what it said when the items were
/// loaded or saved. What only one side has changed is kept. Where both have, the item's own hint stays.
Result merge(Document &document, Hint hint, const TranslationSource::Messages &before,
             const TranslationSource::Messages &onDisk);

/// The hints of all items.
TranslationSource::Messages hints(const Document &document, Hint hint);

/// Gives each item, and no folder, the hint that the source has for it.
void readHints(Document &document, Hint hint, const TranslationSource::Messages &messages);
} // namespace HintMerge
