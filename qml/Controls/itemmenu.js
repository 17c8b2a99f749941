.pragma library

// The menu of a whole item tree, as QML text.

function quoted(text) {
    return JSON.stringify(String(text)).replace(/\u2028/g, "\\u2028").replace(/\u2029/g, "\\u2029");
}

function entries(children) {
    return (children || []).map(entry).join("\n");
}

function entry(child) {
    if (child.separator)
        return "MenuSeparator {}";
    if (child.folder)
        return "Menu { title: " + quoted(child.name) + "\n" + entries(child.children) + "\n}";
    var id = Number(child.id);
    return "MenuItem { text: " + quoted(child.name) + "\n"
        + (child.enabled === false ? "enabled: false\n" : "")
        + "onTriggered: { console.log(\"PopupMenuButton: item " + id + "\"); root.itemId = " + id + "; }\n}";
}

/// A Menu with an int property `itemId`, which a chosen entry sets to its id.
function menuText(tree) {
    return "import QtQuick 2.9\nimport QtQuick.Controls 1.4\n"
        + "Menu {\nid: root\nproperty int itemId: -1\n" + entries(tree.children) + "\n}";
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
