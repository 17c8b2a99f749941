#pragma once

#include "model/TreeItem.h"
#include "model/TutorialItemData.h"

#include <QSet>
#include <QString>
#include <QVector>

/// What the table of the translation shows of a step.
struct HintRow
{
    enum class State {
        Complete,
        Missing, ///< one of the hints, or both
        Stale, ///< the second hint was made from another first one
        Same ///< both have the same words
    };

    int id = -1;
    QString name;
    QString first;
    QString second;
    State state = State::Complete;

    bool operator==(const HintRow &other) const
    {
        return id == other.id && state == other.state && name == other.name && first == other.first
            && second == other.second;
    }
};

/// The rows of the table, as functions without state.
namespace HintRows
{
/// All steps in the order of the tree.
QVector<HintRow> read(const TreeDataTemplate<TutorialItemData> &document, const QSet<int> &staleIds);
/// Whether one of the hints holds the text, in whatever case.
bool holdsText(const HintRow &row, const QString &text);
} // namespace HintRows
