#pragma once

#include <QUndoCommand>

/// Does nothing. It marks a place in the history past which redo must not go.
class UnredoableCommand : public QUndoCommand
{
public:
    /// The item commands have 0 and the tree commands -1.
    static constexpr int kId = 4;

    UnredoableCommand() : QUndoCommand(QStringLiteral("Unredoable")) { }

    int id() const override { return kId; }
    void undo() override { }
    void redo() override { }
};
