import QtQuick 2.9
import "../QtControls"
import "../Singletons"

/// A line of text to edit, in a thin black frame.
Rectangle {
    id: root

    property alias text: input.text
    readonly property alias enteredText: input.enteredText
    property alias textColor: input.color
    property alias contentWidth: input.contentWidth
    property alias contentHeight: input.contentHeight
    property alias selectByMouse: input.selectByMouse
    property alias maximumLength: input.maximumLength

    /// What stands in it, for who can't see its label.
    property string accessibleName: ""
    /// Gets the keys before the field does, if it is set.
    property Item keyFilter: null

    signal editingFinished()

    border.width: 1
    border.color: Theme.textFrame
    clip: true

    TextInput {
        id: input
        Accessible.name: root.accessibleName
        x: 2
        y: 2
        width: parent.width - 4
        height: parent.height - 4
        verticalAlignment: TextInput.AlignVCenter
        selectByMouse: true
        activeFocusOnTab: true
        focus: true
        Keys.forwardTo: root.keyFilter ? [root.keyFilter] : []
        onEditingFinished: root.editingFinished()
    }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.NoButton
        cursorShape: Qt.IBeamCursor
    }
}
