import QtQuick 2.9
import QtQml.Models 2.2
import Morvi.kess 1.0

/// The reordering of rows by a drag. The drag's y says which gap between two
/// rows is meant; the mouse's x says on which level of the tree.
DropArea {
    id: dropArea

    property Item tree: null
    property TreeListTree view: null
    property TreeListTimers timers: null
    property TreeListMarker marker: null
    property TreeListEdits edits: null

    readonly property bool dragging: enteredIndex !== null
    /// The row where the drag began. There is no type for an index but var.
    property var enteredIndex: null
    property int enteredId: -1
    /// The pending move: before a row, or into a folder.
    property var moveBeforeIndex: null
    property var moveIntoIndex: null
    /// The folder under the mouse that is about to open.
    property var lastHoverIndex: null
    property int lastHoverId: -1
    property int currentMouseX: 0
    property int currentMouseY: 0
    property int dragX: 0
    property int dragY: 0
    /// The dragged delegate.
    property TreeListItem dragSource: null

    /// Where the rows begin below the header.
    readonly property real rowsTop: view.flickableItem.headerItem ? view.flickableItem.headerItem.height : 0
    /// How far the rows go by with each step while the drag is near an edge; 0 elsewhere.
    readonly property real edgeStep: {
        if (!dragging)
            return 0;
        var edge = 20;
        return Math.min(0, dragY - rowsTop - edge) + Math.max(0, dragY - height + edge);
    }

    function clearDragMoveEffect() {
        marker.visible = false;
        if (dragSource)
            dragSource.opacity = 1;
        dragSource = null;
        tree.dndTargetFolderId = -2;
    }

    /// The mouse over the view, told by the row that it was pressed on.
    function moveMouse(point) {
        currentMouseX = point.x;
        currentMouseY = point.y;
        if (dragging)
            processDrag(currentMouseX, dragY);
    }

    /// The rows have moved under the drag, which stays where the mouse is.
    function rowsMoved() {
        if (!dragging)
            return;
        dragSource.holdAt(dragY);
        processDrag(currentMouseX, dragY);
    }

    function note(text) {
        applicationWindow.debugText.append(text);
    }

    function idAt(index, fallback) {
        return index.valid ? tree.getIdByIndex(index) : fallback;
    }

    /// Decides where a drop would go.
    function processDrag(x, y) {
        moveBeforeIndex = null;
        moveIntoIndex = null;
        marker.visible = false;
        tree.dndTargetFolderId = -2;
        applicationWindow.debugText.clear();
        var index = tree.rowAt(x, y);
        if (!index.valid)
            return;
        var id = tree.getIdByIndex(index);
        hover(index, id);

        var idList = tree.selection.getTreeSelectedIdList();
        var upOffset = 12;
        var indexUp = tree.rowAt(x, y - upOffset);
        var upId = idAt(indexUp, -2);
        if (!tree.simpleDisplay && upId === id) {
            upOffset = 32;
            indexUp = tree.rowAt(x, y - upOffset);
            upId = idAt(indexUp, -1);
        }
        if (id >= 0 && upId >= -1 && upId !== id && indexUp.valid
                && tryGap(x, y - upOffset, idList, indexUp, index))
            return;

        var indexDown = tree.rowAt(x, y + 12);
        if (!tree.simpleDisplay && idAt(indexDown, -1) === id)
            indexDown = tree.rowAt(x, y + 32);
        if (idAt(indexDown, -1) !== id)
            tryGap(x, y, idList, index, indexDown);
    }

    /// Whether all dragged rows may go into the gap below the row at (x, y).
    function tryGap(x, y, idList, indexUp, indexLow) {
        var pos = getIndexBottomPos(x, y);
        if (!calcMarkerPosAndIndexMove(pos, idList, indexUp, indexLow))
            return false;
        // A row that is only partly in view may end outside.
        marker.show(pos.x, Math.max(rowsTop - 4, Math.min(pos.y - 4, height - 7)));
        return true;
    }

    function calcMarkerPosAndIndexMove(pos, idList, indexUp, indexLow) {
        var drop = tree.treeListModel.calcDrop(idList, indexUp, indexLow, pos.x);
        if (drop.x === undefined)
            return false;
        var target = tree.treeListModel.getModelIndexById(drop.targetId);
        if (drop.before)
            moveBeforeIndex = target;
        else
            moveIntoIndex = target;
        pos.x = drop.x;
        tree.dndTargetFolderId = drop.folderId;
        note((drop.before ? "before " : "into ") + drop.targetId);
        return true;
    }

    /// The last y inside the row at (x, y).
    function getIndexBottomPos(x, y) {
        var id = idAt(tree.rowAt(x, y), -2);
        while (idAt(tree.rowAt(x, y + 1), -2) === id)
            ++y;
        return { x: x, y: y };
    }

    /// Has a closed folder open when the mouse stays over it.
    function hover(index, id) {
        if (hoverTimer.running) {
            if (id !== lastHoverId)
                forgetHover();
            return;
        }
        if (id < 0 || id === enteredId || !tree.getFolderByIndex(index) || view.isExpanded(index)
                || enteredIndex !== null && tree.treeListModel.isAncestor(index, enteredIndex))
            return;
        lastHoverIndex = index;
        lastHoverId = id;
        hoverTimer.start();
    }

    function forgetHover() {
        hoverTimer.stop();
        lastHoverIndex = null;
        lastHoverId = -1;
    }

    function reset() {
        moveBeforeIndex = null;
        moveIntoIndex = null;
        enteredIndex = null;
        enteredId = -1;
        forgetHover();
    }

    /// Ends a drag without a move.
    function cancel() {
        if (!dragging)
            return;
        moveBeforeIndex = null;
        moveIntoIndex = null;
        dragSource.endDrag();
    }

    enabled: tree.dragAndDropEnabled
    keys: ["TreeList/Item"]

    onEntered: {
        reset();
        // A drag of another tree stays there.
        if (!drag.source || drag.source.tree !== tree) {
            drag.accepted = false;
            return;
        }
        dragX = drag.x;
        dragY = drag.y;
        // A fast drag is past the row already where it began.
        var index = tree.treeListModel.getModelIndexById(drag.source.rowId);
        if (!tree.selection.isSelected(index))
            tree.selected.makeCurrent(index);
        if (drag.source.rowId < 0)
            return;
        enteredIndex = index;
        enteredId = drag.source.rowId;
        dragSource = drag.source;
    }

    onPositionChanged: {
        dragX = drag.x;
        dragY = drag.y;
        if (!dragging)
            return;
        processDrag(currentMouseX, dragY);
        dragSource.opacity = 0.5;
    }

    onDropped: note("dropped")

    // The end of a drag comes here too.
    onExited: {
        clearDragMoveEffect();
        var beforeIndex = moveBeforeIndex;
        var intoIndex = moveIntoIndex;
        // What moves the rows from now on is no longer part of the drag.
        reset();
        if (beforeIndex !== null || intoIndex !== null)
            edits.move(beforeIndex, intoIndex);
    }

    Timer {
        id: hoverTimer
        interval: 500
        onTriggered: {
            var index = dropArea.tree.treeListModel.getModelIndexById(dropArea.lastHoverId);
            if (!index.valid)
                return;
            if (dropArea.view.isExpanded(index))
                dropArea.view.collapse(index);
            else
                dropArea.view.expand(index);
            dropArea.view.flickableItem.forceLayout();
            dropArea.rowsMoved();
        }
    }

    Timer {
        interval: 30
        repeat: true
        running: dropArea.edgeStep !== 0
        onTriggered: dropArea.view.scrollTo(dropArea.view.scrolled() + dropArea.edgeStep)
    }
}
