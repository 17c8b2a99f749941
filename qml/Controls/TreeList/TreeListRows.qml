import QtQuick 2.9
import Morvi.kess 1.0

/// Keeps the rows of the tree in line with the document, whoever has edited
/// that. Rows come and go with the tree closed, which keeps the view from
/// showing rows twice; afterwards the view is where it was.
QtObject {
    id: rows

    /// The TreeListView, which knows this type.
    property Item tree: null
    property TreeListDropArea dropArea: null
    property TreeListTree view: null
    property TutorialItemListModel model: null

    /// While the rows change: how far the view was scrolled, and the folders that
    /// were open.
    property real placeBefore: 0
    property var openBefore: []

    readonly property DocumentFollower follower: DocumentFollower {
        history: UndoRedo
        model: rows.model
        onRowsAboutToChange: rows.close()
        onRowsChanged: rows.open()
        onTreeChanged: rows.tree.treeChanged()
        onFollowed: rows.tree.followed(showIds)
    }

    function close() {
        dropArea.cancel();
        placeBefore = view.scrolled();
        openBefore = view.openFolders();
        view.collapse(model.getRootIndex());
    }

    function open() {
        view.expand(model.getRootIndex());
        // The row of a folder that was moved is a new one, and closed.
        openBefore.forEach(function(id) {
            var index = model.getModelIndexById(id);
            if (index.valid && !view.isExpanded(index))
                view.expand(index);
        });
        openBefore = [];
        view.scrollTo(placeBefore);
    }

    function rebuild(change) {
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
}
