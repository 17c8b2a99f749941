import QtQuick 2.9
import QtQuick.Controls 1.4 as Toolkit
import Morvi.kess 1.0
import "../QtControls"
import "../QtControls/toolkit.js" as Internals
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
    property int iwidth: 16
    property int iheight: 16
    /// Called with an id, knows its name where the tree may not; null: the tree knows.
    property var nameOf: null
    /// The tree as objects.
    property var itemTree: ({})
    /// What it chooses, for who can't see its label.
    property string accessibleName: ""
    readonly property int popupItemId: lastPopup ? lastPopup.itemId : -1

    function accessiblePressAction() {
        Internals.pressByKey(root);
    }

    function getName(itemId) {
        if (nameOf)
            return nameOf(itemId);
        return exists(itemId) ? idNameHash[itemId] : "";
    }

    function showName() {
        text = getName(itemId);
    }

    function exists(itemId) {
        return itemId !== undefined && idNameHash[itemId] !== undefined;
    }

    function setFirstItemId() {
        initialAutoSelect = true;
        itemTreeJsonChanged();
        showName();
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
        itemTree = tree;
        addMenu();
        plainAction.enabled = Object.keys(idNameHash).length > 0;
        showName();
    }

    function addMenu() {
        var old = lastPopup;
        var menu = menuComponent.createObject(root, { "itemId": itemId });
        ItemMenu.fill(menu, itemTree.children, menu, Gui.quietly);
        lastPopup = menu;
        if (old)
            old.destroy();
    }

    Accessible.role: Accessible.ButtonMenu
    Accessible.name: accessibleName || text
    Accessible.description: accessibleName ? text : ""

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
        showName();
    }

    // A menu that has been open holds all its entries.
    onPressedChanged: {
        if (pressed && lastPopup && lastPopup.opened && !lastPopup.__popupVisible)
            addMenu();
    }

    Component {
        id: menuComponent

        Toolkit.Menu {
            property int itemId: -1
            property bool opened: false

            onAboutToShow: opened = true
        }
    }
}
