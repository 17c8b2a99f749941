import QtQuick 2.9
import QtQml.Models 2.2
import Morvi.kess 1.0

/// How rows of the tree are selected, and with that its selected state is
/// filled and told.
QtObject {
    property Item tree: null
    property TreeListTimers timers: null
    property TreeListItemSelectionModel selection: null

    /// Selects these rows alone, in one step: what hears of it looks at all of them.
    function selectIds(idList) {
        selection.setCurrentIndex(tree.treeListModel.getModelIndexById(idList[0]), ItemSelectionModel.NoUpdate);
        selection.setSelectedIdList(idList);
    }

    function makeCurrent(index) {
        selection.setCurrentIndex(index, ItemSelectionModel.ClearAndSelect);
    }

    function takeFocusIfAsked(delegate) {
        if (!tree.autoActiveFocus && !tree.autoActiveFocusOneShot)
            return;
        tree.autoActiveFocusOneShot = false;
        delegate.forceActiveFocus();
    }

    /// Fills the selected state from a row and its delegate, which may be null.
    function fill(delegate, id) {
        // The delegate's own index would become another row's together with the delegate.
        var index = tree.treeListModel.getModelIndexById(id);
        tree.selectedMouseArea = delegate;
        tree.selectedIndex = index.row;
        tree.selectedItem = index;
    }

    function tell() {
        if (tree.updateSelectedItem)
            tree.updateSelectedItem();
    }

    /// Makes a row the selection, as a click on it does.
    function select(delegate) {
        timers.forgetTargets();
        makeCurrent(delegate.index);
        delegate.forceActiveFocus();
        fill(delegate, delegate.rowId);
        tree.selectedIsFolder = delegate.folder;
        tree.focusId = delegate.rowId;
        tell();
    }

    function reset() {
        tree.selectedIndex = -1;
        tree.selectedItem = null;
        tree.selectedMouseArea = null;
        tree.selectedIsFolder = false;
        tree.itemId = -1;
        tree.focusId = -1;
    }

    function clear() {
        selection.clear();
        reset();
        tell();
    }
}
