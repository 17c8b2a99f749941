import QtQuick 2.9

/// Marks the folder that a drag would drop into.
Item {
    Rectangle {
        anchors.fill: parent
        color: "red"
        opacity: 0.25
    }

    Rectangle {
        anchors.fill: parent
        color: "transparent"
        border.width: 1
        border.color: "black"
        opacity: 0.5
    }
}
