.pragma library

// The menu of a whole item tree, as QML text.

// The button is the context of the text. The toolkit goes to a submenu's first entry after it has opened.
var opensAtItem = "onAboutToShow: { openAtItem(this); Qt.callLater(openAtItem, this); }\n";

function quoted(text) {
    return JSON.stringify(String(text)).replace(/\u2028/g, "\\u2028").replace(/\u2029/g, "\\u2029");
}

// The toolkit takes a single ampersand for the mark of a mnemonic.
function shown(name) {
    return quoted(String(name).replace(/&/g, "&&"));
}

function entries(children) {
    return (children || []).map(entry).join("\n");
}

function entry(child) {
    if (child.separator)
        return "MenuSeparator {}";
    if (child.folder)
        return "Menu { title: " + shown(child.name) + "\n" + opensAtItem + entries(child.children) + "\n}";
    var id = Number(child.id);
    return "MenuItem { property int itemId: " + id + "; text: " + shown(child.name) + "\n"
        + "onTriggered: { console.log(\"PopupMenuButton: item " + id + "\"); root.itemId = " + id + "; }\n}";
}

/// Enables the items of a menu that was made of those children, or of ones that differ in nothing else.
function enableItems(items, children) {
    (children || []).forEach(function(child, i) {
        if (child.folder)
            enableItems(items[i].items, child.children);
        else if (!child.separator && items[i].enabled !== (child.enabled !== false))
            items[i].enabled = !items[i].enabled;
    });
}

/// Where that item, or a folder that holds it, stands in a menu's items; -1 if nowhere.
function indexOfItem(items, itemId) {
    for (var i = 0; i < items.length; ++i) {
        if (items[i].itemId === itemId || items[i].items && indexOfItem(items[i].items, itemId) >= 0)
            return i;
    }
    return -1;
}

/// A Menu with an int property `itemId`, which a chosen entry sets to its id. All its items are enabled.
function menuText(tree) {
    return "import QtQuick 2.9\nimport QtQuick.Controls 1.4\n"
        + "Menu {\nid: root\nproperty int itemId: -1\n" + opensAtItem + entries(tree.children) + "\n}";
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
