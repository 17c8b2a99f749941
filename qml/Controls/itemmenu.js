.pragma library

// The menu of a whole item tree. Its entries are added one by one, which costs a
// tenth of making the same menu from a text.

// The toolkit takes a single ampersand for the mark of a mnemonic.
function shown(name) {
    return String(name).replace(/&/g, "&&");
}

// As many as a screen shows. The toolkit makes what it needs to draw an entry for
// all that stand in a menu as it opens, and afterwards only for those in view.
var firstEntries = 40;

/// Adds entries for those children to a menu, the first ones at once and the
/// others as it opens. A chosen item goes to the `itemId` of the root menu, at
/// whose item the menus open. `quietly` calls a function while an object emits
/// nothing.
function fill(menu, children, root, quietly) {
    var entries = children || [];
    function add(child) {
        addEntry(menu, child, root, quietly);
    }

    entries.slice(0, firstEntries).forEach(add);
    menu.aboutToShow.connect(function() {
        var left = entries.slice(menu.items.length);
        if (left.length > 0) {
            quietly(menu, function() { left.forEach(add); });
            menu.itemsChanged();
        }
        openAtItem(menu, entries, root.itemId);
        // The toolkit goes to a submenu's first entry after it has opened.
        Qt.callLater(openAtItem, menu, entries, root.itemId);
    });
}

function addEntry(menu, child, root, quietly) {
    if (child.separator)
        menu.addSeparator();
    else if (child.folder)
        fill(menu.addMenu(shown(child.name)), child.children, root, quietly);
    else
        addItem(menu, child, root);
}

function addItem(menu, child, root) {
    var entry = menu.addItem(shown(child.name));
    entry.enabled = child.enabled !== false;
    entry.triggered.connect(function() {
        console.log("PopupMenuButton: item " + child.id);
        root.itemId = child.id;
    });
}

/// The toolkit scrolls a menu to its current entry as it opens.
function openAtItem(menu, children, itemId) {
    var index = indexOfItem(children, itemId);
    if (menu && index >= 0)
        menu.__currentIndex = index;
}

/// Where that item, or a folder that holds it, stands among those children; -1 if nowhere.
function indexOfItem(children, itemId) {
    for (var i = 0; i < (children || []).length; ++i) {
        var child = children[i];
        if (child.folder ? indexOfItem(child.children, itemId) >= 0 : !child.separator && child.id === itemId)
            return i;
    }
    return -1;
}

/// Calls visit(item) for each item of the tree, depth first.
function forEachItem(children, visit) {
    (children || []).forEach(function(child) {
        if (child.folder)
            forEachItem(child.children, visit);
        else if (!child.separator)
            visit(child);
    });
}
