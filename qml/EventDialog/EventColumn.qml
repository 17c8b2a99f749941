import QtQuick 2.9
import Morvi.kess 1.0
import "../Controls"
import "../QtControls"
import "../Singletons"

/// The coordinates and the events of the host editor. Its texts belong to the
/// dialog.
Column {
    id: root

    property TutorialEventListModel eventModel: null
    property alias coordinates: coordinatesField.text

    signal eventChosen(string eventText)

    spacing: 4

    ListKeys {
        id: listKeys
        list: list
        onChosen: list.currentItem.doubleClicked()
    }

    RectangleTextInput {
        id: coordinatesField
        objectName: "coordinates"
        accessibleName: qsTranslate("TutorialEventDialog", "Coordinates")
        width: parent.width
        height: 32
    }

    Rectangle {
        objectName: "eventFrame"
        border.width: list.activeFocus ? 1 : 0
        border.color: Theme.focusFrame
        width: parent.width
        height: parent.height - coordinatesField.height - clearButton.height - 2 * root.spacing

        // The list is what the view scrolls, so that only the rows in view exist.
        ScrollView {
            x: 1
            y: 1
            width: parent.width - 2
            height: parent.height - 2

            ListView {
                id: list
                objectName: "eventList"
                Accessible.role: Accessible.List
                Accessible.name: qsTranslate("TutorialEventDialog", "Events")
                activeFocusOnTab: true
                focus: true
                highlightMoveDuration: 0
                currentIndex: -1
                highlightFollowsCurrentItem: false
                model: root.eventModel
                onCountChanged: endTimer.start()

                delegate: RichRow {
                    view: list
                    row: index
                    width: list.width - 16
                    height: 32
                    content.anchors.verticalCenter: verticalCenter
                    text: name
                    plainText: root.eventModel.getTagStrippedText(Gui.withoutLoading(name))
                    onDoubleClicked: root.eventChosen(root.eventModel.getTagStrippedText(name))
                }

                onCurrentIndexChanged: if (activeFocus) positionViewAtIndex(currentIndex, ListView.Contain)

                Keys.forwardTo: listKeys
            }
        }
    }

    Button {
        id: clearButton
        objectName: "clearButton"
        text: qsTranslate("TutorialEventDialog", "Clear")
        onClicked: root.eventModel.clear()
    }

    Timer {
        id: endTimer
        interval: 1
        onTriggered: list.positionViewAtEnd()
    }
}
