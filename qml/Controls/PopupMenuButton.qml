import QtQuick 2.9
import QtQuick.Controls 1.4 as Toolkit
import "../QtControls"
import "itemmenu.js" as ItemMenu

/// A button that shows the name of the selected tutorial item and opens a
/// menu of the whole item tree.
Button {
    id: root

    property int itemId: -1
    /// The tree, as TutorialItemListModel.getTreeJson gives it.
    property string itemTreeJson: ""
    property var idNameHash: ({})
    property int count: 0
    /// Set, the next walk of the tree selects its first enabled item.
    property bool initialAutoSelect: false
    property Toolkit.Menu lastPopup: null
    /// What lastPopup was made of. To make a menu takes long, and from one step to the next it is the same.
    property string menuText: ""
    property int iwidth: 16
    property int iheight: 16
    readonly property int popupItemId: lastPopup ? lastPopup.itemId : -1

    function getName(itemId) {
        return exists(itemId) ? idNameHash[itemId] : "";
    }

    function exists(itemId) {
        return itemId !== undefined && idNameHash[itemId] !== undefined;
    }

    // The toolkit scrolls a menu to its current entry as it opens.
    function openAtItem(menu) {
        var index = menu ? ItemMenu.indexOfItem(menu.items, itemId) : -1;
        if (index >= 0)
            menu.__currentIndex = index;
    }

    function setFirstItemId() {
        initialAutoSelect = true;
        itemTreeJsonChanged();
        text = getName(itemId);
    }

    function setFirstIfNotSelected() {
        var name = getName(itemId);
        if (text !== "" && name !== "") {
            if (text !== name)
                text = name;
            return;
        }
        setFirstItemId();
    }

    function readTree() {
        var names = {};
        idNameHash = names;
        count = 0;
        if (itemTreeJson === "")
            return;
        var tree = {};
        try {
            tree = JSON.parse(itemTreeJson);
            ItemMenu.forEachItem(tree.children, function(item) {
                names[item.id] = item.name;
                ++count;
                if (initialAutoSelect && item.enabled !== false) {
                    initialAutoSelect = false;
                    itemId = item.id;
                }
            });
        } catch (error) {
            console.log("PopupMenuButton: 32: " + error + " " + itemTreeJson);
        }
        idNameHash = names;
        addMenu(tree);
        plainAction.enabled = Object.keys(idNameHash).length > 0;
        text = getName(itemId);
    }

    function addMenu(tree) {
        var text = "";
        try {
            text = ItemMenu.menuText(tree);
            if (text === menuText) {
                ItemMenu.enableItems(lastPopup.items, tree.children);
                return;
            }
            var menu = Qt.createQmlObject(text, root, "buttonPopup");
            var old = lastPopup;
            ItemMenu.enableItems(menu.items, tree.children);
            menu.itemId = itemId;
            lastPopup = menu;
            menuText = text;
            if (old)
                old.destroy();
        } catch (error) {
            console.log("PopupMenuButton: 87: " + error + " " + text);
        }
    }

    // The toolkit's own would take an ampersand in the text for the mark of a key.
    action: Toolkit.Action {
        id: plainAction
    }
    menu: lastPopup
    style: PopupMenuButtonLook {}

    onItemTreeJsonChanged: readTree()
    onPopupItemIdChanged: {
        if (lastPopup)
            itemId = popupItemId;
    }
    onItemIdChanged: {
        if (lastPopup)
            lastPopup.itemId = itemId;
        text = getName(itemId);
    }
}
