import QtQuick 2.9
import QtQuick.Layouts 1.3
import QtQuick.Window 2.2
import Qt.labs.settings 1.0
import Morvi.kess 1.0
import "EventDialog"
import "QtControls"
import "Singletons"

/// What happens in the host editor, for the writer of a tutorial. A double
/// click takes an entry over into the selected item.
Window {
    id: root

    property string coordinates: eventColumn.coordinates

    signal eventUpdateRequested(string eventText)
    signal controlNameUpdateRequested(string controlName)

    objectName: "TutorialEventDialog"
    title: qsTr("Tutorial event")
    modality: Qt.NonModal
    flags: Qt.Window | Qt.WindowTitleHint | Qt.WindowSystemMenuHint
    width: 966
    height: 788
    visible: true
    color: Theme.window2

    Component.onCompleted: TutorialManager.received.connect(tutorialEventListModel.readMessage)
    onVisibleChanged: console.log("TutorialEventDialog.onVisibleChanged: " + visible)

    Settings {
        category: "TutorialEventDialog.root"
        property alias x: root.x
        property alias y: root.y
        property alias width: root.width
        property alias height: root.height
    }

    TutorialEventListModel {
        id: tutorialEventListModel
        onCoordsTextChanged: eventColumn.coordinates = text
    }

    TutorialRaisedHandListModel {
        id: tutorialRaisedHandListModel
        source: tutorialEventListModel
    }

    GroupBox {
        anchors.fill: parent
        anchors.margins: Theme.margin
        stylePaddingTop: 8

        SplitView {
            anchors.fill: parent
            implicitWidth: 1
            implicitHeight: 1
            orientation: Qt.Horizontal

            EventColumn {
                id: eventColumn
                Layout.minimumWidth: 200
                Layout.fillWidth: true
                eventModel: tutorialEventListModel
                onEventChosen: root.eventUpdateRequested(eventText)
            }

            TrackingColumn {
                width: 320
                Layout.minimumWidth: 200
                trackingModel: tutorialRaisedHandListModel
                onControlChosen: root.controlNameUpdateRequested(controlName)
            }
        }
    }
}
