import QtQuick 2.9
import "../QtControls"
import "../Singletons"

/// Lines of text to edit, in a thin black frame.
Rectangle {
    id: root

    property alias text: edit.text
    property alias textColor: edit.color
    property alias contentWidth: edit.contentWidth
    property alias contentHeight: edit.contentHeight
    property alias selectByMouse: edit.selectByMouse
    property alias wrapMode: edit.wrapMode
    property string langCode: ""
    /// What stands in it, for who can't see its label.
    property string accessibleName: ""
    /// An item whose `text` follows this one's.
    property Item pair: null
    /// Called with this item on each change of the text.
    property var textChangedCallback: null

    signal editingFinished()

    border.width: 1
    border.color: Theme.textFrame

    TextEdit {
        id: edit
        Accessible.name: root.accessibleName
        x: 2
        y: 2
        width: parent.width - 4
        height: parent.height - 8
        selectByMouse: true
        focus: true
        wrapMode: TextEdit.Wrap
        onEditingFinished: root.editingFinished()
        onTextChanged: {
            if (root.pair)
                root.pair.text = text;
            if (root.textChangedCallback)
                root.textChangedCallback(root);
        }
    }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.NoButton
        cursorShape: Qt.IBeamCursor
    }
}
