import QtQuick 2.9
import QtQuick.Controls 1.4
import Morvi.kess 1.0

/// The context menu of the tree of tutorial items. Its members are forwarded by
/// the menu bar while the tree has the focus. Its texts belong to the screen.
Menu {
    id: root

    property Item activeFocusItem: null
    property bool anySelected: false
    property bool rootSelected: false
    readonly property alias addFolderMi: addFolderItem
    readonly property alias addItemMi: addItemItem
    readonly property alias copyMi: copyItem
    readonly property alias cutMi: cutItem
    readonly property alias pasteMi: pasteItem
    readonly property alias deleteMi: deleteItem
    readonly property alias moveUpMi: moveUpItem
    readonly property alias moveDownMi: moveDownItem
    readonly property alias moveInMi: moveInItem
    readonly property alias moveOutMi: moveOutItem
    readonly property alias prohibitMi: prohibitItem

    signal folderRequested()
    signal itemRequested()
    signal copyRequested()
    signal pasteRequested()
    signal deleteRequested()
    signal moveRequested(int step)
    signal prohibitRequested()

    title: qsTranslate("TutorialSettingItem", "Tutorial item menu")

    MenuItem {
        id: addFolderItem
        text: qsTranslate("TutorialSettingItem", "Add folder")
        onTriggered: root.folderRequested()
    }

    MenuItem {
        id: addItemItem
        text: qsTranslate("TutorialSettingItem", "Add item")
        onTriggered: root.itemRequested()
    }

    MenuItem {
        id: copyItem
        text: qsTranslate("TutorialSettingItem", "Copy")
        enabled: root.anySelected
        onTriggered: root.copyRequested()
    }

    MenuItem {
        id: cutItem
        text: qsTranslate("TutorialSettingItem", "Cut")
        enabled: root.anySelected
        onTriggered: {
            root.copyRequested();
            root.deleteRequested();
        }
    }

    MenuItem {
        id: pasteItem
        text: qsTranslate("TutorialSettingItem", "Paste")
        enabled: TutorialManager.mimeType === "TutorialItemData/ItemList"
        onTriggered: root.pasteRequested()
    }

    MenuItem {
        id: deleteItem
        text: qsTranslate("TutorialSettingItem", "Delete")
        enabled: root.anySelected
        onTriggered: root.deleteRequested()
    }

    MenuSeparator {}

    MenuItem {
        id: moveUpItem
        text: qsTranslate("TutorialSettingItem", "Move up")
        enabled: root.anySelected
        onTriggered: root.moveRequested(TutorialItemListModel.StepUp)
    }

    MenuItem {
        id: moveDownItem
        text: qsTranslate("TutorialSettingItem", "Move down")
        enabled: root.anySelected
        onTriggered: root.moveRequested(TutorialItemListModel.StepDown)
    }

    MenuItem {
        id: moveInItem
        text: qsTranslate("TutorialSettingItem", "Move into the folder")
        enabled: root.anySelected
        onTriggered: root.moveRequested(TutorialItemListModel.StepIn)
    }

    MenuItem {
        id: moveOutItem
        text: qsTranslate("TutorialSettingItem", "Move out of the folder")
        enabled: root.anySelected
        onTriggered: root.moveRequested(TutorialItemListModel.StepOut)
    }

    MenuItem {
        id: prohibitItem
        text: qsTranslate("TutorialSettingItem", "Prohibit or permit (Space)")
        enabled: root.anySelected || root.rootSelected
        onTriggered: root.prohibitRequested()
    }
}
