import QtQuick 2.9
import "../Controls"

/// Chooses the item that a step goes on with. The step itself is no such item.
/// The tree of its menu is asked for when that is to open, and not with each
/// edit and each selected step; until then the model knows the name.
PopupMenuButton {
    id: root

    property ItemFields screen: null

    signal edited(int newId)
    signal treeRequested()

    function show(id) {
        itemId = id;
        showName();
    }

    function itemName(id) {
        if (id === -1)
            return qsTranslate("TutorialSettingItem", "(Next)");
        var model = screen.model;
        var index = model.getModelIndexById(id);
        return index.valid && !model.data(index, model.RoleFolder) ? model.data(index, model.RoleName) : "";
    }

    width: 256
    height: 32
    nameOf: itemName

    onPressedChanged: if (pressed) treeRequested()
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
