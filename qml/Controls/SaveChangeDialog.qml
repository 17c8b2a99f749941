import QtQuick 2.9
import QtQuick.Window 2.2
import Qt.labs.settings 1.0
import "../QtControls"
import "../Singletons"

/// Asks what to do with unsaved changes. `callback` is called once: 1 for Yes,
/// 0 for No, -1 for Cancel, and not at all when the window is closed.
Window {
    id: root

    property alias message: messageText.text
    property var callback: null

    function answer(result) {
        var answered = callback;
        callback = null;
        close();
        if (answered)
            answered(result);
    }

    objectName: "SaveChangeDialog"
    title: qsTr("Save project")
    modality: Qt.WindowModal
    flags: Qt.Dialog
    width: 320
    height: 240

    onVisibleChanged: {
        if (visible)
            yesButton.forceActiveFocus();
    }

    Settings {
        category: "SaveChangeDialog.root"
        property alias x: root.x
        property alias y: root.y
        property alias width: root.width
        property alias height: root.height
    }

    Shortcut {
        sequence: "Escape"
        onActivated: root.answer(-1)
    }

    GradationRectangle {
        anchors.fill: parent
    }

    GroupBox {
        anchors {
            top: parent.top
            left: parent.left
            right: parent.right
            bottom: buttons.top
            margins: Theme.margin
        }
        stylePaddingTop: 8

        // The box takes its size from the window, not from the text.
        Item {
            anchors.fill: parent
            implicitWidth: 1
            implicitHeight: 1

            Text {
                id: messageText
                Accessible.role: Accessible.AlertMessage
                Accessible.name: text
                width: parent.width
                wrapMode: Text.Wrap
            }
        }
    }

    Row {
        id: buttons
        anchors {
            right: parent.right
            bottom: parent.bottom
            margins: Theme.margin
        }
        spacing: 4

        DialogButton {
            id: yesButton
            objectName: "yes"
            text: qsTr("Yes")
            onClicked: root.answer(1)
        }

        DialogButton {
            objectName: "no"
            text: qsTr("No")
            onClicked: root.answer(0)
        }

        DialogButton {
            objectName: "cancel"
            text: qsTr("Cancel")
            onClicked: root.answer(-1)
        }
    }
}
