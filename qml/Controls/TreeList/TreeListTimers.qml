import QtQuick 2.9

/// What TreeListView waits for. New rows, and those of a folder that has just
/// opened, have no delegates before the view has laid them out.
///
/// - autoFocusTimer, on the way to one row, waits after each folder that it
///   opens for the delegates of the rows in it.
/// - autoSelectTimer waits for the delegates of rows that are to be selected
///   together, and then selects them once more.
/// - delaySelectTimer waits until the changes of the selection in this turn are
///   over, and then brings the row that was asked for last into view.
///
/// The first two end in the third. Where the user goes to a row by himself, both
/// are stopped.
Item {
    id: timers

    /// The TreeListView, which knows this type.
    property Item tree: null
    property TreeListTree view: null
    property TreeListKeys keys: null

    /// Walks that path of ids, opening folders, and selects the row of its last.
    function startAutoFocus(idList) {
        autoFocusTimer.idList = idList.slice();
        autoFocusTimer.restart();
    }

    /// Selects the rows once more when the view has made their delegates. With showAll, the last of
    /// them comes into view too.
    function startAutoSelect(idList, showAll) {
        autoSelectTimer.idList = idList.slice();
        autoSelectTimer.showAll = showAll === true;
        autoSelectTimer.restart();
    }

    /// A row that the user goes to stands above one that was still to be gone to.
    function forgetTargets() {
        autoFocusTimer.stop();
        autoSelectTimer.stop();
    }

    /// Brings the row into view.
    function startDelaySelect(id) {
        delaySelectTimer._id = id;
        delaySelectTimer.start();
    }

    /// Brings a row into view whose delegate may not have been made yet, in place
    /// of what was to be selected.
    function showRow(id) {
        forgetTargets();
        delaySelectTimer.select = false;
        startDelaySelect(id);
    }

    function followSelection(idList) {
        tree.selectedItem = null;
        if (idList.length > 1)
            delaySelectTimer.select = false;
        if (idList.length > 0)
            startDelaySelect(keys.idToShow(idList));
        tree.focusId = idList.length > 0 ? idList[0] : -1;
        tree.selectedIsFolder = tree.selection.hasSelectedFolder();
        tree.selectedIdListChanged(idList);
    }

    /// Scrolls to the row, or to the closed folder that holds it, and says whether
    /// the view has moved by that.
    function scrollTowards(id) {
        var model = tree.treeListModel;
        var bottom = tree.rowAt(64, view.viewport.height - 1);
        var shown = view.shownIndex(model.getModelIndexById(id));
        if (!bottom.valid || !shown.valid)
            return false;
        var shownId = tree.getIdByIndex(shown);
        if (!model.isLower(shownId, tree.getIdByIndex(bottom)) && tree.getItemById(shownId))
            return false;
        var scrolled = view.scrolled();
        var rows = view.rowsAbove(shown) - view.rowsAbove(bottom);
        view.scrollTo(scrolled + tree.simpleDisplayHeight * rows);
        return view.scrolled() !== scrolled;
    }

    Timer {
        id: autoFocusTimer

        property var idList: []

        function step() {
            var id = idList[0];
            var index = tree.treeListModel.getModelIndexById(id);
            if (!index.valid)
                console.log("TreeListView.autoFocusTimer: id not found: " + id);
            idList.shift();
            var delegate = tree.getItemById(id);
            if (!delegate) {
                // The last one is selected as soon as it has come into view.
                if (idList.length === 0 && index.valid)
                    delaySelectTimer.select = true;
                startDelaySelect(id);
                return true;
            }
            if (idList.length > 0) {
                if (view.isExpanded(delegate.index))
                    return true;
                view.expand(delegate.index);
                start();
                return false;
            }
            tree.selected.makeCurrent(delegate.index);
            tree.selected.takeFocusIfAsked(delegate);
            tree.selected.fill(delegate, delegate.rowId);
            tree.selectedIsFolder = delegate.folder;
            tree.focusId = id;
            tree.selected.tell();
            delaySelectTimer.select = false;
            startDelaySelect(id);
            return true;
        }

        interval: 100
        onTriggered: {
            while (idList.length > 0 && step())
                continue;
        }
    }

    Timer {
        id: autoSelectTimer

        property var idList: []
        property bool showAll: false

        interval: 100
        onTriggered: {
            if (idList.length === 0)
                return;
            tree.selected.selectIds(idList);
            if (showAll) {
                keys.showId(idList[idList.length - 1]);
                keys.showId(idList[0]);
            }
            var id = idList.shift();
            if (!tree.treeListModel.exists(id))
                console.log("TreeListView.autoSelectTimer: id not found: " + id);
            var delegate = tree.getItemById(id);
            if (delegate) {
                tree.selected.takeFocusIfAsked(delegate);
                tree.selected.fill(delegate, delegate.rowId);
                tree.focusId = id;
                tree.selected.tell();
            }
            idList = [];
            delaySelectTimer.select = false;
            startDelaySelect(id);
        }
    }

    Timer {
        id: delaySelectTimer

        property int _id: -1
        property bool select: true

        // The arrow keys of the view, and a row that was out of view, leave the selected state to
        // be filled here.
        function adopt(delegate) {
            var selection = tree.selection;
            if (tree.selectedItem !== null || selection.getSelectedCount() !== 1
                    || tree.getIdByIndex(selection.getFirstSelectedModelIndex()) !== delegate.rowId)
                return;
            tree.selected.takeFocusIfAsked(delegate);
            tree.selected.fill(delegate, delegate.rowId);
            tree.selected.tell();
        }

        interval: 1
        onTriggered: {
            if (_id < 0)
                return;
            // A folder that has just opened has no delegates before the next frame.
            view.flickableItem.forceLayout();
            var id = _id;
            _id = -1;
            var moved = scrollTowards(id);
            var delegate = tree.getItemById(id);
            if (!delegate) {
                // The rows there may have to be laid out first.
                if (moved)
                    startDelaySelect(id);
                return;
            }
            view.reveal(delegate);
            if (!select) {
                adopt(delegate);
                return;
            }
            select = false;
            tree.selected.takeFocusIfAsked(delegate);
            tree.selected.makeCurrent(delegate.index);
            tree.selected.fill(delegate, delegate.rowId);
            tree.focusId = id;
            tree.selected.tell();
        }
    }
}
