import QtQuick 2.9

/// The timers of TreeListView. Each change of the model is followed by new
/// delegates, and what depends on these waits one timer.
Item {
    id: timers

    property var tree
    property var view
    property var keys

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
        // The way to another row is no longer wanted.
        if (bottomScrollTimer._id !== id)
            bottomScrollTimer.stop();
        delaySelectTimer._id = id;
        delaySelectTimer.start();
    }

    /// Brings a row into view whose delegate may not have been made yet, in place
    /// of what was to be selected.
    function showRow(id) {
        autoFocusTimer.stop();
        autoSelectTimer.stop();
        delaySelectTimer.select = false;
        startDelaySelect(id);
    }

    function startAutoOpen(id) {
        autoOpenTimer.folderId = id;
        autoOpenTimer.restart();
    }

    /// Has the next delayed selection first scroll back to where the view is now.
    function keepContentY() {
        delaySelectTimer.lContentY = view.scrolled();
    }

    function followSelection(idList) {
        tree.selectedItem = null;
        if (idList.length > 1)
            delaySelectTimer.select = false;
        if (idList.length > 0)
            startDelaySelect(keys.idToShow(idList));
        tree.focusId = idList.length > 0 ? idList[0] : -1;
        tree.selectedIsFolder = idList.some(function(id) {
            return tree.getFolderByIndex(tree.treeListModel.getModelIndexById(id)) === true;
        });
        tree.selectedIdListChanged(idList);
    }

    /// Scrolls until the row, or the closed folder that holds it, is in view.
    function checkTopBottom(id) {
        var model = tree.treeListModel;
        var bottom = tree.rowAt(64, view.viewport.height - 1);
        var shown = view.shownIndex(model.getModelIndexById(id));
        if (!bottom.valid || !shown.valid)
            return;
        var shownId = tree.getIdByIndex(shown);
        if (!model.isLower(shownId, tree.getIdByIndex(bottom)) && tree.getItemById(shownId)) {
            startDelaySelect(id);
            return;
        }
        var scrolled = view.scrolled();
        var rows = view.rowsAbove(shown) - view.rowsAbove(bottom);
        view.scrollTo(scrolled + tree.simpleDisplayHeight * rows);
        if (view.scrolled() === scrolled)
            return;
        bottomScrollTimer._id = id;
        bottomScrollTimer.start();
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
            tree.makeCurrent(delegate.index);
            tree.takeFocusIfAsked(delegate);
            tree.fillSelected(delegate, delegate.rowId);
            tree.selectedIsFolder = delegate.folder;
            tree.focusId = id;
            tree.callUpdateSelectedItem();
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
            tree.selectIds(idList);
            if (showAll) {
                keys.showId(idList[idList.length - 1]);
                keys.showId(idList[0]);
            }
            var id = idList.shift();
            if (!tree.treeListModel.exists(id))
                console.log("TreeListView.autoSelectTimer: id not found: " + id);
            var delegate = tree.getItemById(id);
            if (delegate) {
                tree.takeFocusIfAsked(delegate);
                tree.fillSelected(delegate, delegate.rowId);
                tree.focusId = id;
                tree.callUpdateSelectedItem();
            }
            idList = [];
            delaySelectTimer.select = false;
            startDelaySelect(id);
        }
    }

    Timer {
        id: delaySelectTimer

        property int _id: -1
        property var lContentY: null
        property bool select: true

        // The arrow keys of the view, and a row that was out of view, leave the selected state to
        // be filled here.
        function adopt(delegate) {
            var selection = tree.selection;
            if (tree.selectedItem !== null || selection.getSelectedCount() !== 1
                    || tree.getIdByIndex(selection.getFirstSelectedModelIndex()) !== delegate.rowId)
                return;
            tree.takeFocusIfAsked(delegate);
            tree.fillSelected(delegate, delegate.rowId);
            tree.callUpdateSelectedItem();
        }

        interval: 1
        onTriggered: {
            if (lContentY !== null) {
                view.scrollTo(lContentY);
                lContentY = null;
            }
            if (_id < 0)
                return;
            // A folder that has just opened has no delegates before the next frame.
            view.flickableItem.forceLayout();
            var id = _id;
            checkTopBottom(id);
            _id = -1;
            var delegate = tree.getItemById(id);
            if (!delegate)
                return;
            view.reveal(delegate);
            if (!select) {
                adopt(delegate);
                return;
            }
            select = false;
            tree.takeFocusIfAsked(delegate);
            tree.makeCurrent(delegate.index);
            tree.fillSelected(delegate, delegate.rowId);
            tree.focusId = id;
            tree.callUpdateSelectedItem();
        }
    }

    Timer {
        id: bottomScrollTimer

        property int _id: -1

        interval: 1
        onTriggered: checkTopBottom(_id)
    }

    Timer {
        id: autoOpenTimer

        property int folderId: -2

        interval: 100
        onTriggered: {
            var delegate = folderId >= -1 ? tree.getItemById(folderId) : null;
            if (delegate && !view.isExpanded(delegate.index))
                view.expand(delegate.index);
        }
    }
}
