import QtQuick 2.9
import QtQuick.Controls 1.4
import "../../Singletons"

/// The background of a row, and its mouse where the item does not cover it.
Rectangle {
    id: row

    /// The TreeListView and the TreeListTree, which know this type.
    property Item tree: null
    property TreeView view: null
    property QtObject rowData: null
    /// Whether the row is a folder's. The item delegate knows and says so.
    property bool folder: false
    /// -1 where there is no row.
    readonly property int rowNumber: rowData && rowData.row !== undefined ? rowData.row : -1
    property int enteredNumber: -1

    function enter() {
        leave();
        if (rowNumber < 0)
            return;
        view.rowIndexMapper[rowNumber] = row;
        enteredNumber = rowNumber;
    }

    function leave() {
        if (enteredNumber >= 0 && view.rowIndexMapper[enteredNumber] === row)
            delete view.rowIndexMapper[enteredNumber];
        enteredNumber = -1;
    }

    function select(y) {
        var index = view.indexAt(view.viewport.width - 8, mapToItem(view, 0, y).y);
        var id = index.valid ? tree.getIdByIndex(index) : -2;
        if (id >= 0 && tree.selection.isSelected(index))
            return;
        var delegate = id >= 0 ? tree.getItemById(id) : null;
        if (delegate)
            tree.selected.select(delegate);
        else
            tree.selected.clear();
    }

    height: folder || tree.simpleDisplay ? tree.simpleDisplayHeight : tree.richDisplayHeight
    color: {
        if (rowNumber < 0)
            return Theme.outsideArea;
        if (rowData.selected)
            return Theme.selectedRow;
        return rowData.alternate ? Theme.normalBack2 : Theme.normalBack1;
    }

    border.width: rowData && rowData.hasActiveFocus === true ? 1 : 0
    border.color: rowData && rowData.selected ? Theme.selectedRowText : Theme.normalText

    onRowNumberChanged: enter()
    Component.onCompleted: enter()
    Component.onDestruction: leave()

    MouseArea {
        anchors.fill: parent
        enabled: row.rowNumber >= 0
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        onPressed: {
            if (mouse.button !== Qt.LeftButton)
                return;
            row.select(mouse.y);
            // The view sees it too.
            mouse.accepted = false;
        }
        onClicked: {
            row.select(mouse.y);
            if (mouse.button === Qt.RightButton)
                row.tree.popupContextMenu();
        }
    }
}
