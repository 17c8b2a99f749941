import QtQuick 2.9
import QtQuick.Controls 1.4
import Morvi.kess 1.0
import "qrc:/qml"
import "qrc:/qml/Controls"

/// A window round the tree list control, with what that asks of the application window.
ApplicationWindow {
    id: applicationWindow

    property var activeMenu: null
    property alias debugText: debugPanel.debugText
    readonly property alias tree: treeList
    readonly property alias model: itemModel
    readonly property alias other: otherField
    property int renames: 0
    property int menus: 0

    function rename(index, text) {
        ++renames;
        UndoRedo.beginSequence("rename");
        itemModel.changeItemName(index, text);
        UndoRedo.endSequence();
    }

    width: 360
    height: 420
    visible: true

    TutorialItemListModel {
        id: itemModel
    }

    DebugPanel {
        id: debugPanel
    }

    Menu {
        id: menu

        onAboutToShow: dismissTimer.start()

        MenuItem { text: "Copy" }
    }

    // An open menu would take the next click.
    Timer {
        id: dismissTimer
        interval: 1
        onTriggered: {
            menu.__dismissMenu();
            ++applicationWindow.menus;
        }
    }

    TreeListView {
        id: treeList
        width: parent.width
        height: 390
        treeListModel: itemModel
        treeListViewTitle: "Tutorial items"
        contextMenu: menu
        multiple: true
        onTextChanged: applicationWindow.rename
        updateSelectedItem: function() {}
    }

    TextInput {
        id: otherField
        y: 395
        width: 100
        height: 20
    }
}
