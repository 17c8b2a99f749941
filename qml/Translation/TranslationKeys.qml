import QtQuick 2.9
import Morvi.kess 1.0

/// The keys of the translation's window. Those of the menu bar act in its own
/// window alone.
Item {
    id: root

    signal filterRequested(int filter)
    signal searchRequested()
    signal nextRequested()
    signal confirmRequested()

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
        sequences: [StandardKey.Find]
        onActivated: root.searchRequested()
    }

    Shortcut {
        sequence: "F3"
        onActivated: root.nextRequested()
    }

    Shortcut {
        sequence: "F7"
        onActivated: root.confirmRequested()
    }

    Shortcut {
        sequence: "Ctrl+1"
        onActivated: root.filterRequested(HintTableModel.All)
    }

    Shortcut {
        sequence: "Ctrl+2"
        onActivated: root.filterRequested(HintTableModel.Missing)
    }

    Shortcut {
        sequence: "Ctrl+3"
        onActivated: root.filterRequested(HintTableModel.Stale)
    }
}
