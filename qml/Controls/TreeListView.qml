import QtQuick 2.9
import QtQuick.Controls 1.4
import QtQml.Models 2.2
import Morvi.kess 1.0
import "TreeList"
import "../QtControls/toolkit.js" as Toolkit
import "../Singletons"

/// A tree of named items with folders: reordering by drag, selection of several
/// rows, rename in place and a prohibition toggle on every row.
///
/// The view makes delegates only for the rows in view, and makes them anew
/// after a collapse. So ids are what lasts, and what must reach a row goes
/// through its id and a timer.
Rectangle {
    id: root

    readonly property int firstFolder: -2
    readonly property int simpleDisplayHeight: 24
    readonly property int richDisplayHeight: 64

    property var treeListModel: null
    /// Handed in by the user and not read here.
    property Item bottomToolbar: null
    /// Popped up on a right click, and the window's active menu while the tree
    /// has the focus.
    property Menu contextMenu: null
    /// Called without arguments after the selected state has changed.
    property var updateSelectedItem: null
    property string treeListViewTitle: ""
    /// Called with (index, text) for a rename; null switches renames off.
    property var onTextChanged: null
    /// Called with (index), gives the icon in simple display.
    property var getSimpleIconFilename: null
    /// Called with (null, index, 0), gives the icon in rich display.
    property var getIconFilename: null
    /// Called with (id, inside), gives the severity of the sign at a row, or of those of all rows in a
    /// folder: 0 an error, 1 a warning, 2 a remark, -1 none. What it reads is followed.
    property var signOf: null
    /// Called alike, gives the words of the sign.
    property var signTextOf: null
    property bool simpleDisplay: true
    /// The id that focusOn() goes to.
    property int focusId: -1
    property bool dragAndDropEnabled: true
    property bool multiple: false
    /// Empty: a drag stays inside the control. Else the keys of an external one.
    property var dragKeys: []
    /// Called with (id), says whether the row may be dragged.
    property var draggableCallback: null
    property bool clickRenameEnabled: true
    /// False while the keys are for an open menu.
    property bool keysEnabled: true
    /// Selecting by code also takes the keyboard focus; the one-shot does so once.
    property bool autoActiveFocus: false
    property bool autoActiveFocusOneShot: false

    /// The selected row: its number in its folder, its index, its delegate.
    property int selectedIndex: -1
    property var selectedItem: null
    property var selectedMouseArea: null
    /// Whether the selection holds a folder.
    property bool selectedIsFolder: false
    /// Of selectedItem.
    property int itemId: -1
    property bool isFolder: false
    /// The folder that the drag would drop into; -2 for none.
    property int dndTargetFolderId: -2

    readonly property alias selection: selectionModel
    readonly property alias dropArea: dropArea
    readonly property alias edits: edits
    readonly property alias selected: selectedRow

    signal itemClicked(int itemId)
    signal itemDoubleClicked(int itemId)
    signal itemUpdated(int itemId)
    signal itemsUpdated()
    signal selectedIdListChanged(var idList)
    signal treeItemMoved()
    /// The rows are in line with the document again (see DocumentFollower).
    signal followed(var showIds)
    /// The shape of the tree, or a name in it, has changed.
    signal treeChanged()

    /// Opens the folders towards focusId and selects its row.
    function focusOn() {
        // What is selected is what a drop would move.
        if (dropArea.dragging)
            return;
        timers.startAutoFocus(treeListModel.getFocusIdList(focusId));
    }

    function refresh() {
        var root = treeListModel.getRootIndex();
        view.collapse(root);
        view.expand(root);
    }

    /// Brings the rows in line with the document, whether it has changed or not.
    function refreshPartial() {
        rows.rebuild(function() { treeListModel.refreshPartial(); });
    }

    /// Brings the rows in line with an edit now, and not in the next turn of the
    /// event loop, for who goes on with them.
    function follow() {
        rows.follower.follow();
    }

    /// Reads the document anew. Folders stay open, and the view where it is.
    function reread() {
        rows.rebuild(function() { treeListModel.refresh(); });
    }

    function addFolder(targetId) {
        UndoRedo.beginSequence("addFolder");
        var id = treeListModel.addFolder(targetId);
        UndoRedo.endSequence();
        follow();
        autoActiveFocusOneShot = true;
        setSelectedIdList([id]);
        return id;
    }

    /// The caller opens the transaction.
    function deleteId(id) {
        deleteIdList([id]);
    }

    function deleteIdList(idList) {
        var nextId = treeListModel.getNextId(idList);
        treeListModel.deleteIdList(idList);
        follow();
        selectedRow.reset();
        if (nextId < 0)
            return;
        // The keys go on from there at once.
        selectionModel.setCurrentIndex(treeListModel.getModelIndexById(nextId), ItemSelectionModel.NoUpdate);
        timers.startAutoSelect([nextId]);
    }

    function setSelectedIdList(idList) {
        if (idList.length === 0) {
            selectionModel.clear();
            return;
        }
        rows.openFoldersOf(idList[0]);
        selectedRow.selectIds(idList);
        timers.startAutoSelect(idList, true);
    }

    /// Selects rows that are there already, and scrolls as little as it takes to
    /// show the first of them.
    function showIdList(idList) {
        idList.forEach(rows.openFoldersOf);
        selectionModel.setSelectedIdList(idList);
        var id = idList[0];
        selectionModel.setCurrentIndex(treeListModel.getModelIndexById(id), ItemSelectionModel.NoUpdate);
        timers.showRow(id);
        var delegate = getItemById(id);
        if (delegate && view.activeFocus)
            delegate.forceActiveFocus();
        selectedRow.fill(delegate, id);
        focusId = id;
        selectedRow.tell();
    }

    /// A name that is being typed would go with its row.
    function finishRename() {
        view.finishRename();
    }

    function scrollBottom() {
        view.scrollTo(view.flickableItem.contentHeight - view.viewport.height);
    }

    function updateItem(id) {
        if (id < 0) {
            view.updateIcons();
            return;
        }
        var delegate = getItemById(id);
        if (delegate)
            delegate.updateIcon();
    }

    /// The delegate of that id; null if there is none at this moment.
    function getItemById(id) {
        // The delegate of that id writes itself into searchedItem during the assignment.
        view.searchId = id;
        var delegate = view.searchedItem;
        view.searchId = -2;
        view.searchedItem = null;
        return delegate;
    }

    /// The index at the point; that of the root row where there is no row.
    function indexAt(x, y) {
        var index = rowAt(x, y);
        return index.valid ? index : treeListModel.getModelIndexById(-1);
    }

    function getIdByIndex(index) {
        return treeListModel.data(index, treeListModel.RoleId);
    }

    function getNameByIndex(index) {
        return treeListModel.data(index, treeListModel.RoleName);
    }

    function getFolderByIndex(index) {
        return treeListModel.data(index, treeListModel.RoleFolder);
    }

    /// Takes back all that a drag shows.
    function clearDragMoveEffect() {
        dropArea.clearDragMoveEffect();
    }

    // What follows serves the pieces of the control.

    function rowAt(x, y) {
        return view.indexAt(x < 0 ? 64 : x, y < 0 ? 4 : y);
    }

    /// At the mouse, or at that place of an item.
    function popupContextMenu(item, place) {
        if (contextMenu && item)
            Toolkit.popupAt(contextMenu, item, place);
        else if (contextMenu)
            contextMenu.popup();
    }

    /// No index outlives the rows that a reset takes.
    function forgetRows() {
        selectedMouseArea = null;
        selectedIndex = -1;
        selectedItem = null;
        dropArea.reset();
        Qt.callLater(focusOnIfShown);
    }

    function focusOnIfShown() {
        if (visible && treeListModel)
            focusOn();
    }

    color: Theme.outsideArea

    onTreeListModelChanged: if (treeListModel) treeListModel.modelAboutToBeReset.connect(forgetRows)
    onSelectedItemChanged: {
        if (selectedItem === null) {
            itemId = -1;
            isFolder = false;
            return;
        }
        var id = getIdByIndex(selectedItem);
        if (id === undefined)
            return;
        itemId = id;
        isFolder = getFolderByIndex(selectedItem) === true;
    }
    onItemIdChanged: focusId = itemId
    onSimpleDisplayChanged: view.updateIcons()
    onVisibleChanged: focusOnIfShown()
    Component.onCompleted: focusOnIfShown()
    // The list complains when the model goes before it.
    Component.onDestruction: view.model = null

    TreeListDropArea {
        id: dropArea
        anchors.fill: parent
        tree: root
        view: view
        timers: timers
        marker: marker
        edits: edits
    }

    FocusScope {
        anchors.fill: parent
        focus: true

        Keys.onPressed: event.accepted = keys.pressPlusOrMinus(event.key)

        TreeListTree {
            id: view
            objectName: "view"
            anchors.fill: parent
            focus: true
            tree: root
            dropArea: dropArea
            keys: keys
            model: root.treeListModel
            selection: selectionModel
            onActiveFocusChanged: {
                if (activeFocus)
                    applicationWindow.activeMenu = root.contextMenu;
                else if (applicationWindow.activeMenu === root.contextMenu)
                    applicationWindow.activeMenu = null;
            }
        }
    }

    Item {
        anchors.fill: parent
        clip: true

        TreeListMarker {
            id: marker
            objectName: "marker"
            barWidth: view.viewport.width
        }
    }

    Item {
        id: keyHolder
    }

    TreeListSelectedRow {
        id: selectedRow
        tree: root
        timers: timers
        selection: selectionModel
    }

    TreeListEdits {
        id: edits
        tree: root
        view: view
        timers: timers
        keys: keys
        rows: rows
    }

    TreeListRows {
        id: rows
        tree: root
        view: view
        dropArea: dropArea
        keyHolder: keyHolder
        model: root.treeListModel
    }

    TreeListTimers {
        id: timers
        tree: root
        view: view
        keys: keys
    }

    TreeListKeys {
        id: keys
        tree: root
        view: view
        timers: timers
        dropArea: dropArea
    }

    TreeListItemSelectionModel {
        id: selectionModel
        model: root.treeListModel
        onSelectedIdListChanged: timers.followSelection(getTreeSelectedIdList())
    }
}
