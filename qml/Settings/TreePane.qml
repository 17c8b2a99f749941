import QtQuick 2.9
import "../Controls"
import "../Singletons"

/// The tree of tutorial items with its tool buttons. Its texts belong to the
/// screen.
FocusScope {
    id: root

    property alias treeListView: tree
    property alias toolbar: buttons

    signal folderRequested()
    signal itemRequested()
    signal deleteRequested()

    FocusScope {
        anchors {
            top: parent.top
            left: parent.left
            right: parent.right
            bottom: buttons.top
        }
        focus: true

        TreeListView {
            id: tree
            objectName: "treeListView"
            anchors.fill: parent
            bottomToolbar: buttons
            treeListViewTitle: qsTranslate("TutorialSettingItem", "Tutorial item list")
            simpleDisplay: true
            multiple: true
        }
    }

    Rectangle {
        id: buttons
        anchors {
            left: parent.left
            right: parent.right
            bottom: parent.bottom
        }
        height: row.height
        color: Theme.toolArea

        Row {
            id: row
            anchors.right: parent.right

            IconButton {
                objectName: "addFolderButton"
                imageSource: "../../icon/add_folder.png"
                tooltip: qsTranslate("TutorialSettingItem", "Add folder")
                onClicked: root.folderRequested()
            }

            IconButton {
                objectName: "addItemButton"
                imageSource: "../../icon/new_data.png"
                tooltip: qsTranslate("TutorialSettingItem", "Add item")
                onClicked: root.itemRequested()
            }

            IconButton {
                objectName: "deleteButton"
                imageSource: "../../icon/delete.png"
                tooltip: qsTranslate("TutorialSettingItem", "Delete")
                onClicked: root.deleteRequested()
            }
        }
    }
}
