import QtQuick 2.9
import ".."

/// The sign of a row, which tells its words while the mouse is on it, and by a key until the row
/// loses the focus.
SeveritySign {
    id: sign

    /// The TreeListItem, which knows this type.
    property MouseArea owner: null

    function toggleText() {
        tooltip.active = !tooltip.active;
    }

    function hideText() {
        tooltip.active = false;
    }

    severity: owner.sign
    // What is in a closed folder is not of the row itself.
    opacity: owner.ownSign < 0 ? 0.5 : 1

    Component.onCompleted: owner.activeFocusChanged.connect(hideText)
    Component.onDestruction: owner.activeFocusChanged.disconnect(hideText)

    MouseArea {
        id: hover
        anchors.fill: parent
        acceptedButtons: Qt.NoButton
        hoverEnabled: true
        onContainsMouseChanged: tooltip.active = false
    }

    Timer {
        interval: 500
        running: hover.containsMouse && !sign.owner.pressed
        onTriggered: tooltip.active = true
    }

    Loader {
        id: tooltip
        objectName: "signTooltip"
        active: false
        sourceComponent: Component {
            Tooltip {
                target: sign
                text: sign.owner.signText()
                visible: !sign.owner.pressed
            }
        }
    }
}
