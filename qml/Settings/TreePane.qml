import QtQuick 2.9
import Morvi.kess 1.0
import "../Controls"
import "../Singletons"

/// The tree of tutorial items with its tool buttons. Its texts belong to the
/// screen.
FocusScope {
    id: root

    /// What is wrong with the tutorial, for the signs at the rows.
    property TutorialProblems problems: null
    property alias treeListView: tree
    property alias toolbar: buttons

    signal folderRequested()
    signal itemRequested()
    signal deleteRequested()

    // The tree asks anew when the revision is another one.
    function signOf(id, inside) {
        if (!problems || problems.revision === 0)
            return -1;
        return inside ? problems.severityIn(id) : problems.severityOf(id);
    }

    function signTextOf(id, inside) {
        if (!problems || problems.revision === 0)
            return "";
        return inside ? qsTranslate("TutorialSettingItem", "There are problems in this folder.") : problems.textOf(id);
    }

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
            signOf: root.signOf
            signTextOf: root.signTextOf
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
