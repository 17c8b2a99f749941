import QtQuick 2.9
import QtQuick.Window 2.2
import Morvi.kess 1.0

// Carries no picture of its own: the guidance is drawn by windows of its own.
Window {
    id: applicationWindow

    x: 0
    y: -64
    width: 1
    height: 1
    visible: true
    flags: Qt.Tool
    title: qsTr("-")

    // The first use of the manager opens the link to the host editor.
    Component.onCompleted: console.log("connected:", TutorialManager.connected(), "flags:", flags)
}
