import QtQuick 2.9
import QtQuick.Window 2.2
import Qt.labs.settings 1.0
import "Controls"

/// Shows the licence texts.
Window {
    id: root

    objectName: "LicenseWindow"
    title: qsTranslate("main", "License")
    width: 640
    height: 480
    modality: Qt.WindowModal
    // What isn't a dialog may fall behind the window that it blocks.
    flags: Qt.Dialog

    onVisibleChanged: {
        if (visible)
            okButton.forceActiveFocus();
    }

    Settings {
        category: "main.help"
        property alias x: root.x
        property alias y: root.y
        property alias width: root.width
        property alias height: root.height
    }

    Shortcut {
        sequence: "Escape"
        onActivated: root.hide()
    }

    // The texts are long, and few ever open this window.
    Loader {
        active: root.visible
        sourceComponent: Component {
            Help {}
        }
        anchors {
            top: parent.top
            left: parent.left
            right: parent.right
            bottom: okButton.top
            margins: 16
        }
    }

    DialogButton {
        id: okButton
        objectName: "ok"
        anchors {
            right: parent.right
            bottom: parent.bottom
            margins: 16
        }
        text: "OK"
        onClicked: root.hide()
    }
}
