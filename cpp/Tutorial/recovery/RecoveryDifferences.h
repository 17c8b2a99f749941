#pragma once

#include "Tutorial/recovery/RecoveryCopy.h"

#include <QStringList>

/// What tells two states of a tutorial apart, as functions without state.
namespace RecoveryDifferences
{
/// The state of a copy as a save would store it: a hint that was not edited is what its file says now,
/// and so is whether that is stale.
TutorialState merged(const RecoveryCopy &copy, const TutorialState &stored);

/// A line for each item that was added, removed or moved, and for each field that was changed, and for each translation
/// that is stale in one of them only, for the user. It is empty only where a save of the one and of the other would
/// give the same files.
QStringList lines(const TutorialState &before, const TutorialState &after);
} // namespace RecoveryDifferences
