#pragma once

#include "model/TreeItem.h"
#include "model/TutorialItemData.h"

#include <QHash>
#include <QRect>
#include <QSet>
#include <QString>
#include <QVector>

class HintSizes;

/// A tutorial with what is known of it when it is checked. What is not known is not looked at.
struct CheckSubject
{
    /// A language of the hints.
    struct Language
    {
        QString locale; ///< such as "ja_JP"
        QString file; ///< its translation source
        QString TutorialItemData::*hint = nullptr;
    };

    const TreeDataTemplate<TutorialItemData> *document = nullptr; ///< not owned, never null in a check
    QString file; ///< the scenario file
    QVector<Language> languages; ///< the first one is that of the writer; empty where no translation is known
    /// Steps whose first hint has changed since the second one was made from it.
    QSet<int> staleIds;
    /// Not owned. A hint that is not measured yet, and all if this is null, is taken to fit.
    const HintSizes *hintSizes = nullptr;
    /// The steps that a way reached when the tutorial was saved, Walk::reachedIds of then; empty where none was.
    QSet<int> reachedAtSave;
    /// The keys of windows and controls that a host editor has reported, with their places on the screen.
    QHash<QString, QPoint> reportedPlaces;
    bool isHostKnown = false; ///< whether a host editor has reported anything
    QRect hostRect; ///< the host editor's rectangle on the screen; null where it is not known
};
