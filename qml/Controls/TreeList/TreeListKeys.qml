import QtQuick 2.9
import QtQml.Models 2.2

/// What the keys do in the view. They go on from the current row, or from the
/// one that Shift has extended the selection to.
QtObject {
    id: keys

    /// The TreeListView and its TreeListDropArea, which know this type.
    property Item tree: null
    property DropArea dropArea: null
    property TreeListTree view: null
    /// The TreeListTimers, which know this type.
    property Item timers: null
    /// The row to which the selection was extended last; -2 is no id.
    property int leadId: -2

    function press(event) {
        if (event.modifiers & (Qt.AltModifier | Qt.MetaModifier)) {
            // Where there is nothing to move, the toolkit would open a menu.
            event.accepted = [Qt.Key_Up, Qt.Key_Down, Qt.Key_Left, Qt.Key_Right].indexOf(event.key) >= 0;
            return;
        }
        if (dropArea.dragging) {
            event.accepted = true;
            if (event.key === Qt.Key_Escape)
                dropArea.cancel();
            return;
        }
        var control = (event.modifiers & Qt.ControlModifier) !== 0;
        var row = rowOf(leadIndex());
        var target = row;
        switch (event.key) {
        case Qt.Key_Up: target = row - 1; break;
        case Qt.Key_Down: target = row + 1; break;
        case Qt.Key_PageUp: target = row - rowsOfPage(); break;
        case Qt.Key_PageDown: target = row + rowsOfPage(); break;
        case Qt.Key_Home: target = 0; break;
        case Qt.Key_End: target = view.flickableItem.count - 1; break;
        case Qt.Key_Menu:
            event.accepted = popupMenu();
            return;
        case Qt.Key_F10:
            event.accepted = event.modifiers === Qt.ShiftModifier && popupMenu();
            return;
        default:
            event.accepted = control ? pressWithControl(event.key) : pressOther(event.key, event.modifiers);
            return;
        }
        event.accepted = !control || tree.multiple;
        if (!event.accepted || renaming())
            return;
        if (control)
            makeCurrent(target);
        else
            go(target, tree.multiple && (event.modifiers & Qt.ShiftModifier) !== 0);
    }

    function pressWithControl(key) {
        if (!tree.multiple || renaming())
            return false;
        if (key === Qt.Key_A) {
            leadId = -2;
            tree.selection.selectAllItems();
        } else if (key === Qt.Key_Space) {
            toggleSelected();
        } else {
            return false;
        }
        return true;
    }

    function toggleSelected() {
        var index = leadIndex();
        if (!index.valid || tree.getIdByIndex(index) < 0)
            return;
        makeCurrent(rowOf(index));
        var delegate = tree.getItemById(tree.getIdByIndex(index));
        delegate.toggle();
        // Not the first of the selected rows.
        timers.showRow(delegate.rowId);
    }

    function pressOther(key, modifiers) {
        var index = tree.selection.currentIndex;
        if (!index.valid || renaming())
            return false;
        if (key === Qt.Key_Right) {
            if (view.isExpanded(index))
                go(rowOf(index) + (tree.treeListModel.rowCount(index) > 0 ? 1 : 0), false);
            else
                view.expand(index);
        } else if (key === Qt.Key_Left) {
            if (view.isExpanded(index))
                view.collapse(index);
            else if (index.parent.valid)
                go(rowOf(index.parent), false);
        } else if (key === Qt.Key_F2) {
            var delegate = showRow(rowOf(index));
            if (!delegate || !delegate.renamable)
                return false;
            delegate.startRename();
        } else if (key === Qt.Key_Space && modifiers === Qt.NoModifier) {
            tree.edits.toggleProhibited();
        } else if (key === Qt.Key_F1) {
            var signed = showRow(rowOf(index));
            return signed !== null && signed.toggleSignText();
        } else {
            return false;
        }
        return true;
    }

    function popupMenu() {
        var index = tree.selection.currentIndex;
        var delegate = index.valid && !renaming() ? showRow(rowOf(index)) : null;
        if (delegate)
            tree.popupContextMenu(delegate, Qt.point(24, delegate.height));
        return delegate !== null;
    }

    function pressPlusOrMinus(key) {
        var index = tree.selection.currentIndex;
        if (key !== Qt.Key_Plus && key !== Qt.Key_Minus || !index.valid)
            return false;
        if (key === Qt.Key_Plus)
            view.expand(index);
        else
            view.collapse(index);
        return true;
    }

    function renaming() {
        var index = tree.selection.currentIndex;
        var delegate = index.valid ? tree.getItemById(tree.getIdByIndex(index)) : null;
        return delegate !== null && delegate.renaming;
    }

    function leadIndex() {
        var lead = tree.treeListModel.getModelIndexById(leadId);
        var extended = lead.valid && tree.selection.getSelectedCount() > 1 && tree.selection.isSelected(lead);
        return extended ? lead : tree.selection.currentIndex;
    }

    /// The row of that selection that shall be in view.
    function idToShow(idList) {
        var index = leadIndex();
        return idList.length > 1 && index.valid && tree.selection.isSelected(index) ? tree.getIdByIndex(index)
                                                                                   : idList[0];
    }

    function rowOf(index) {
        return index.valid ? view.rowsAbove(view.shownIndex(index)) : -1;
    }

    function rowsOfPage() {
        var height = view.viewport.height - view.flickableItem.headerItem.height;
        return Math.max(1, Math.floor(height / tree.simpleDisplayHeight) - 1);
    }

    /// Brings a row into view and gives its delegate.
    function showRow(row) {
        var list = view.flickableItem;
        // The list makes its current row's delegate at once, and keeps it.
        list.currentIndex = Math.max(0, Math.min(row, list.count - 1));
        var delegate = tree.getItemById(tree.getIdByIndex(view.currentIndex));
        if (delegate)
            view.reveal(delegate);
        return delegate;
    }

    function showId(id) {
        var index = tree.treeListModel.getModelIndexById(id);
        if (index.valid)
            showRow(rowOf(index));
    }

    /// The keys go to the row, and what is selected stays so.
    function makeCurrent(row) {
        var delegate = showRow(row);
        if (!delegate)
            return;
        leadId = -2;
        tree.selection.setCurrentIndex(delegate.index, ItemSelectionModel.NoUpdate);
        delegate.forceActiveFocus();
    }

    function go(row, extend) {
        var delegate = showRow(row);
        if (!delegate)
            return;
        if (!extend || !tree.selection.currentIndex.valid) {
            tree.selected.select(delegate);
            return;
        }
        delegate.forceActiveFocus();
        leadId = delegate.rowId;
        tree.selection.setSelectedBetweenCurrentAnd(delegate.index);
    }
}
