import QtQuick 2.9

/// Gets the keys of a field before the field does: there is one history, and
/// what was typed last stands at its end.
Item {
    Keys.onPressed: {
        var undo = event.matches(StandardKey.Undo);
        if (!undo && !event.matches(StandardKey.Redo))
            return;
        event.accepted = true;
        if (undo)
            applicationWindow.undo();
        else
            applicationWindow.redo();
    }
}
