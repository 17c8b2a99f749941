import QtQuick 2.9
import QtQml.Models 2.2
import Morvi.kess 1.0

/// The edits of rows that mouse and keys make alike. What is selected moves together and stays
/// selected.
QtObject {
    id: edits

    /// The TreeListView, which knows this type.
    property Item tree: null
    property TreeListTree view: null
    property TreeListTimers timers: null
    property TreeListKeys keys: null
    /// The TreeListRows, which knows this type.
    property QtObject rows: null

    /// Before a row, or to the end of a folder; the other index is null.
    function move(beforeIndex, intoIndex) {
        var model = tree.treeListModel;
        var idList = tree.selection.getTreeSelectedIdList();
        if (beforeIndex !== null) {
            UndoRedo.beginSequence("moveTreeItem(1)");
            model.moveIdListBeforeIndex(beforeIndex, idList);
            UndoRedo.endSequence();
            tree.follow();
        } else {
            var folderId = tree.getIdByIndex(intoIndex);
            UndoRedo.beginSequence("moveTreeItem(2)");
            model.moveIdListIntoIndex(intoIndex, idList);
            UndoRedo.endSequence();
            tree.follow();
            view.expand(model.getModelIndexById(folderId));
        }
        tree.selection.setSelectedIdList(idList);
        timers.startAutoSelect(idList);
        tree.treeItemMoved();
    }

    /// Moves what is selected by a step among its neighbours, if there is a place for it.
    function moveByStep(step) {
        var model = tree.treeListModel;
        var idList = tree.selection.getTreeSelectedIdList();
        var place = model.calcStep(idList, step);
        if (place.targetId === undefined)
            return;
        var target = model.getModelIndexById(place.targetId);
        var held = rows.holdKeys();
        move(place.before ? target : null, place.before ? null : target);
        // The keys go on from there at once.
        idList.forEach(rows.openFoldersOf);
        keys.showId(idList[idList.length - 1]);
        keys.showId(idList[0]);
        tree.showIdList(idList);
        if (held)
            rows.returnKeys();
    }

    /// Prohibits what is selected, or permits it again, by the state of its first row.
    function toggleProhibited() {
        var model = tree.treeListModel;
        var idList = tree.selection.getTreeSelectedIdList();
        var current = tree.selection.currentIndex;
        // The root row stands for all items, though no list of ids has it.
        if (idList.length === 0 && current.valid && tree.selection.isSelected(current))
            idList = [tree.getIdByIndex(current)];
        if (idList.length === 0)
            return;
        setProhibited(idList, model.data(model.getModelIndexById(idList[0]), model.RoleProhibited) !== true);
    }

    function setProhibited(idList, prohibited) {
        UndoRedo.beginSequence("changeProhibited");
        idList.forEach(function(id) { tree.treeListModel.setValue(id, "prohibited", prohibited); });
        UndoRedo.endSequence();
        idList.forEach(tree.itemUpdated);
    }
}
