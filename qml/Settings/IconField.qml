import QtQuick 2.9
import "../Controls"

/// The icon of the selected item. A name that is not in the list shows as none.
NameIdComboBox {
    id: root

    property ItemFields screen: null

    signal edited(string newName)

    function show(name) {
        itemId = nameList.indexOf(name);
        showItemId();
    }

    nameList: ["click", "doubleClick", "rightClick", "eye", "wait", "keyboard"]
    idList: [0, 1, 2, 3, 4, 5]

    onItemIdChanged: {
        if (completed && !screen.updating)
            edited(itemId >= 0 ? nameList[idList.indexOf(itemId)] : "");
    }

    WheelGuard {}
}
