#pragma once

#include <QList>

class QUndoCommand;

/// The ids of the items that a step of the history is about: those of its tree commands, or else the
/// one of which it changes properties. None if it changes properties of many.
QList<int> stepItems(const QUndoCommand &step);
