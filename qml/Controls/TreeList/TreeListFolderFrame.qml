import QtQuick 2.9
import "../../Singletons"

/// Marks the folder that a drag would drop into.
Item {
    Rectangle {
        anchors.fill: parent
        color: Theme.dropFolder
        opacity: 0.25
    }

    Rectangle {
        anchors.fill: parent
        color: "transparent"
        border.width: 1
        border.color: Theme.dropFolderFrame
        opacity: 0.5
    }
}
