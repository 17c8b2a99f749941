import QtQuick 2.9
import Morvi.kess 1.0
import ".."

/// The keys of the translation's window.
Item {
    id: root

    signal filterRequested(int filter)
    signal searchRequested()
    signal nextRequested()
    signal confirmRequested()
    signal partRequested()

    DocumentKeys {}

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
        sequence: "F6"
        onActivated: root.partRequested()
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
