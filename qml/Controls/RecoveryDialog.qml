import QtQuick 2.9
import QtQuick.Window 2.2
import "../QtControls"
import "../Singletons"

/// Asks what to do with the changes that were not saved when the program ended.
/// Whoever closes it without an answer is asked again the next time.
Window {
    id: root

    property string file: ""
    /// What has become of the file, if anything.
    property string remark: ""
    /// A line for each difference, once the writer looks.
    property var differences: []
    property bool looking: false

    signal restoreChosen()
    signal lookChosen()
    signal discardChosen()
    signal closedUnanswered()

    function ask() {
        looking = false;
        differences = [];
        // Not by show(): the toolkit hides it again when the window below appears.
        visible = true;
        restoreButton.forceActiveFocus();
    }

    objectName: "RecoveryDialog"
    title: qsTr("Unsaved changes")
    modality: Qt.WindowModal
    flags: Qt.Dialog
    width: 560
    height: looking ? 400 : 180

    onClosing: closedUnanswered()

    Shortcut {
        sequence: "Escape"
        onActivated: root.close()
    }

    GradationRectangle {
        anchors.fill: parent
    }

    Text {
        id: question
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
        anchors {
            top: parent.top
            left: parent.left
            right: parent.right
            margins: 12
        }
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        text: [
            qsTr("The program ended before the changes of this tutorial were saved. A copy of them is there."),
            root.file,
            root.remark,
            qsTr("Do you restore them?")
        ].filter(function(line) { return line !== ""; }).join("\n")
    }

    Rectangle {
        anchors {
            top: question.bottom
            left: parent.left
            right: parent.right
            bottom: buttons.top
            margins: 12
        }
        visible: root.looking
        border.width: 1
        border.color: Theme.textFrame

        ScrollView {
            anchors.fill: parent
            anchors.margins: 1

            ListView {
                objectName: "differences"
                Accessible.role: Accessible.List
                Accessible.name: root.title
                activeFocusOnTab: true
                keyNavigationEnabled: true
                highlightMoveDuration: 0
                model: root.differences
                delegate: Text {
                    Accessible.role: Accessible.ListItem
                    Accessible.name: text
                    x: 4
                    width: ListView.view.width - 8
                    textFormat: Text.PlainText
                    wrapMode: Text.Wrap
                    text: modelData
                }
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
            id: restoreButton
            objectName: "restore"
            text: qsTr("Restore")
            onClicked: root.restoreChosen()
        }

        DialogButton {
            objectName: "look"
            text: qsTr("Look")
            onClicked: {
                root.lookChosen();
                root.looking = !root.looking;
            }
        }

        DialogButton {
            objectName: "discard"
            text: qsTr("Discard")
            onClicked: root.discardChosen()
        }
    }
}
