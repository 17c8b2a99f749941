import QtQuick 2.9
import "../QtControls" as Kit
import "../Singletons"

/// The label of a hint, with a mark under it while learners would see
/// no hint but its key. Its texts belong to the screen.
FieldLabel {
    id: root

    property bool missing: false
    readonly property string missingText: missing ? mark.text : ""

    anchors.verticalCenter: undefined

    Rectangle {
        objectName: root.objectName + ".missing"
        anchors.top: parent.bottom
        width: parent.width - 4
        height: mark.contentHeight + 4
        radius: 2
        color: Theme.deluxeLabel1
        visible: root.missing

        Kit.Text {
            id: mark
            anchors.centerIn: parent
            text: qsTranslate("TutorialSettingItem", "empty")
            color: Theme.deluxeLabelText
            font.pixelSize: 10
        }
    }
}
