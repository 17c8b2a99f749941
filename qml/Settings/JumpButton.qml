import QtQuick 2.9
import "../Controls"

/// Chooses the item that a step goes on with. The step itself is no such item.
PopupMenuButton {
    id: root

    property ItemFields screen: null

    signal edited(int newId)

    function show(id) {
        itemId = id;
    }

    width: 256
    height: 32

    onItemIdChanged: {
        if (screen.updating)
            return;
        if (itemId >= 0 && itemId === screen.itemId) {
            itemId = -1;
            return;
        }
        edited(itemId);
    }
}
