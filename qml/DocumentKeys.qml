import QtQuick 2.9

/// The keys of the document in a window beside the main one: those of the menu
/// bar act in its own window alone.
Item {
    Shortcut {
        sequences: [StandardKey.Save]
        onActivated: applicationWindow.saveTutorial()
    }

    // Where no text has the keys.
    Shortcut {
        sequences: [StandardKey.Undo]
        onActivated: applicationWindow.undo()
    }

    Shortcut {
        sequences: [StandardKey.Redo]
        onActivated: applicationWindow.redo()
    }

    Shortcut {
        sequence: "F8"
        onActivated: applicationWindow.menuBar.problemsRequested()
    }

    Shortcut {
        sequence: "F9"
        onActivated: applicationWindow.menuBar.translationRequested()
    }
}
