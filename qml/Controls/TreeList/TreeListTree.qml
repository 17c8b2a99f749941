import QtQuick 2.9
import QtQuick.Controls 1.4
import QtQml.Models 2.2
import Morvi.kess 1.0
import "../../Singletons"

/// The view of TreeListView, with its delegates.
TreeView {
    id: treeView

    /// The TreeListView, its TreeListDropArea and its TreeListKeys, which know
    /// this type.
    property Item tree: null
    property DropArea dropArea: null
    property QtObject keys: null
    /// The row delegates by row number, for the item delegates that know more of a row.
    property var rowIndexMapper: ({})
    /// The delegate of the id in searchId, while it is set; -2 is no id.
    property int searchId: -2
    property TreeListItem searchedItem: null
    /// The delegate whose name was typed into last.
    property TreeListItem renamedItem: null

    /// Changes when all icons are to be read anew.
    property int iconRound: 0

    function updateIcons() {
        ++iconRound;
    }

    /// The row itself, or the outermost closed folder that hides it.
    function shownIndex(index) {
        var shown = index;
        for (var folder = index.parent; folder.valid; folder = folder.parent) {
            if (!isExpanded(folder))
                shown = folder;
        }
        return shown;
    }

    /// The folders among those rows and below them that are open, whether they are
    /// in a closed one or not.
    function openFolders(folder, first, last) {
        return model.getFolders(folder, first, last).filter(isExpanded);
    }

    /// The ids of all folders that are open, but for the root row.
    function openIds() {
        var root = model.getRootIndex();
        return openFolders(root, 0, model.rowCount(root) - 1).map(tree.getIdByIndex);
    }

    /// How many rows are shown above one that is shown.
    function rowsAbove(index) {
        return model.getRowsAbove(index, openIds());
    }

    /// How far the view is scrolled down. The list moves its origin as rows come and go.
    function scrolled() {
        return flickableItem.contentY - flickableItem.originY;
    }

    /// Scrolls there, as far as there are rows.
    function scrollTo(distance) {
        flickableItem.forceLayout();
        var bottom = flickableItem.contentHeight - viewport.height;
        flickableItem.contentY = flickableItem.originY + Math.max(0, Math.min(distance, bottom));
    }

    /// A row that takes the focus while rows come tells the list its number of before. When the
    /// row of that number goes, the list would let its delegate stand.
    function agreeOnCurrentRow() {
        flickableItem.forceLayout();
        var current = flickableItem.currentItem;
        if (current && current.rowItem && current.rowItem.rowIndex >= 0)
            flickableItem.currentIndex = current.rowItem.rowIndex;
    }

    /// Scrolls as little as it takes to show the whole row.
    function reveal(delegate) {
        var y = delegate.mapToItem(viewport, 0, 0).y;
        var top = flickableItem.headerItem.height;
        if (y < top)
            scrollTo(scrolled() - (top - y));
        else if (y + delegate.height > viewport.height)
            scrollTo(scrolled() + y + delegate.height - viewport.height);
    }

    function finishRename() {
        Gui.finishComposition();
        if (renamedItem)
            renamedItem.finishRename();
        renamedItem = null;
    }

    Accessible.role: Accessible.Tree
    Accessible.name: tree.treeListViewTitle

    backgroundVisible: false
    selectionMode: tree.multiple ? SelectionMode.ExtendedSelection : SelectionMode.SingleSelection
    style: TreeListStyle {}

    rowDelegate: TreeListRow {
        tree: treeView.tree
        view: treeView
        rowData: styleData
    }

    itemDelegate: TreeListItem {
        tree: treeView.tree
        view: treeView
        dropArea: treeView.dropArea
        rowData: styleData
        rowModel: model
    }

    onClicked: {
        var id = tree.getIdByIndex(index);
        if (tree.getFolderByIndex(index) && !isExpanded(index))
            return;
        tree.selected.makeCurrent(index);
        var delegate = tree.getItemById(id);
        if (delegate)
            delegate.forceActiveFocus();
        tree.selected.fill(delegate, id);
        tree.focusId = id;
        tree.selected.tell();
        tree.itemClicked(id);
    }
    onDoubleClicked: tree.itemDoubleClicked(tree.getIdByIndex(index))

    Keys.enabled: tree.keysEnabled
    Keys.onPressed: {
        event.accepted = false;
        keys.press(event);
    }

    Component.onCompleted: {
        flickableItem.interactive = false;
        // The toolkit's keys know neither the selection's current row nor the tree.
        flickableItem.Keys.enabled = false;
        flickableItem.focus = true;
        // Delegates in the making complain when a change of the rows overtakes them.
        flickableItem.cacheBuffer = 0;
        // Else the list's highlight, which nobody sees, goes after the current row for
        // minutes where that is far, and each of its steps is a frame.
        flickableItem.highlightMoveDuration = 0;
        flickableItem.contentYChanged.connect(dropArea.rowsMoved);
    }

    // Above the toolkit's own mouse area and below the rows.
    MouseArea {
        parent: treeView.flickableItem
        anchors.fill: parent
        z: -0.5
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        onPressed: {
            // The toolkit's own mouse area closes folders.
            treeView.finishRename();
            mouse.accepted = !treeView.tree.rowAt(mouse.x, mouse.y).valid;
            if (mouse.accepted)
                treeView.forceActiveFocus();
        }
        onClicked: {
            treeView.tree.selected.clear();
            if (mouse.button === Qt.RightButton)
                treeView.tree.popupContextMenu();
        }
    }

    TableViewColumn {
        role: "name"
        title: treeView.tree.treeListViewTitle
        width: treeView.viewport.width
        resizable: false
        movable: false
    }
}
