import QtQuick 2.9
import "../QtControls"
import "../Singletons"

/// A hint as it is shown where nobody edits it.
Item {
    id: root

    property alias text: content.text
    /// Learners would see no hint but its key.
    property bool missing: false
    readonly property real contentHeight: content.contentHeight + 8

    signal pressed(real x, real y)

    Text {
        id: content
        x: 4
        y: 4
        width: parent.width - 8
        wrapMode: Text.Wrap
        font.family: Theme.fixedFont
        font.italic: root.missing
    }

    Rectangle {
        anchors.right: parent.right
        width: 1
        height: parent.height
        color: Theme.controlFrame
        opacity: 0.4
    }

    MouseArea {
        anchors.fill: parent
        cursorShape: Qt.IBeamCursor
        onPressed: {
            mouse.accepted = true;
            root.pressed(mouse.x, mouse.y);
        }
    }
}
