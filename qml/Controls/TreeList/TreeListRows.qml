import QtQuick 2.9
import Morvi.kess 1.0

/// Keeps the rows of the tree in line with the document, whoever has edited
/// that. The tree stays open where rows come and go at a few places, and is
/// closed where they are many: for each place the toolkit walks all that is
/// open. Afterwards the same folders are open, and the view is where it was.
QtObject {
    id: rows

    readonly property int fewPlaces: 8

    /// The TreeListView, which knows this type.
    property Item tree: null
    property TreeListDropArea dropArea: null
    property TreeListTree view: null
    property TutorialItemListModel model: null
    /// Has no role, so that nothing is said of it.
    property Item keyHolder: null

    /// While the rows change: at how many places they have done so, whether all of
    /// the tree is closed for that, how far the view was scrolled, and the folders
    /// that are to be open again.
    property int places: 0
    property bool closed: false
    property real placeBefore: 0
    property var openBefore: []
    property bool keysHeld: false

    readonly property DocumentFollower follower: DocumentFollower {
        history: UndoRedo
        model: rows.model
        onRowsFollowed: if (rows.places > 0) rows.open()
        onTreeChanged: rows.tree.treeChanged()
        onFollowed: {
            rows.tree.followed(showIds);
            if (rows.keysHeld)
                rows.returnKeys();
            rows.keysHeld = false;
        }
    }

    /// Rows come or go at one more place.
    function makeWay() {
        if (places++ === 0) {
            dropArea.cancel();
            placeBefore = view.scrolled();
            keysHeld = holdKeys();
        }
        if (!closed)
            view.agreeOnCurrentRow();
        if (places > fewPlaces && !closed) {
            tree.selection.setAside();
            close();
        }
    }

    /// When the row that has the keys goes, the view gives them to one neighbour after the other, and
    /// a screen reader says each. Takes them out of the view, if they are there and nobody is typing.
    function holdKeys() {
        var held = view.activeFocus && !view.keys.renaming();
        if (held)
            keyHolder.forceActiveFocus();
        return held;
    }

    /// The current row has the keys again.
    function returnKeys() {
        var index = tree.selection.currentIndex;
        var delegate = index.valid ? tree.getItemById(tree.getIdByIndex(index)) : null;
        (delegate || view).forceActiveFocus();
    }

    /// Keeps in mind which folders were open among rows that go: those of a folder
    /// that is moved come anew, and closed.
    function letGo(folder, first, last) {
        makeWay();
        if (closed)
            return;
        view.openFolders(folder, first, last).forEach(function(index) {
            openBefore.push(tree.getIdByIndex(index));
            view.collapse(index);
        });
    }

    function close() {
        closed = true;
        openBefore = openBefore.concat(view.openIds());
        view.collapse(model.getRootIndex());
    }

    function open() {
        tree.selection.putBack();
        view.expand(model.getRootIndex());
        openBefore.forEach(function(id) {
            var index = model.getModelIndexById(id);
            if (index.valid && !view.isExpanded(index))
                view.expand(index);
        });
        openBefore = [];
        places = 0;
        closed = false;
        view.agreeOnCurrentRow();
        view.scrollTo(placeBefore);
    }

    function rebuild(change) {
        dropArea.cancel();
        placeBefore = view.scrolled();
        places = 1;
        close();
        change();
        model.refreshRoles();
        open();
    }

    /// Opens all folders that the item stands in.
    function openFoldersOf(id) {
        var index = model.getModelIndexById(id);
        if (!index.valid)
            return;
        for (var folder = index.parent; folder.valid; folder = folder.parent)
            view.expand(folder);
    }

    onModelChanged: {
        if (!model)
            return;
        model.rowsAboutToGo.connect(letGo);
        model.rowsAboutToCome.connect(makeWay);
    }
}
