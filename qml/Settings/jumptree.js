.pragma library

function disable(entry, itemId) {
    if (entry.id === itemId)
        entry.enabled = false;
    if (entry.folder)
        entry.children.forEach(function(child) { disable(child, itemId); });
}

/// The tree text of the jump menus for the item of that id: the next item comes
/// first, and the item itself can't be chosen. Throws on a text that is no tree.
function forItem(treeText, itemId, nextName) {
    var tree = JSON.parse(treeText);
    tree.children.unshift({ "id": -1, "name": nextName }, { "separator": true });
    disable(tree, itemId);
    return JSON.stringify(tree);
}
