import QtQuick 2.9
import QtQuick.Controls 1.4 as Toolkit
import QtQml.Models 2.2
import "../../QtControls"
import "../../Singletons"

/// The delegate of a row: icon, name and prohibition toggle, with the mouse and
/// keys of the row. The view hands it on from row to row.
MouseArea {
    id: delegate

    /// The TreeListView, the TreeListTree and the TreeListDropArea, which know
    /// this type.
    property Item tree: null
    property Toolkit.TreeView view: null
    property DropArea dropArea: null
    property QtObject rowData: null
    /// What the toolkit calls the model of a delegate; undefined where there is no row.
    property var rowModel

    readonly property bool live: rowData.row >= 0 && !!rowModel
    /// -3 while the delegate stands for no row.
    readonly property int rowId: live && rowModel["id"] !== undefined ? rowModel["id"] : -3
    readonly property var index: rowData.index
    readonly property int rowNumber: rowData.row
    readonly property bool folder: live && rowModel["folder"] === true
    readonly property bool prohibited: live && rowModel["prohibited"] === true
    /// The sign of the row itself, and what it shows: a closed folder that of what it holds.
    readonly property int ownSign: readSign(false)
    readonly property int sign: ownSign < 0 && folder && !rowData.isExpanded ? readSign(true) : ownSign
    readonly property int depth: rowData.depth - 1
    readonly property int itemHeight: folder || tree.simpleDisplay ? tree.simpleDisplayHeight
                                                                   : tree.richDisplayHeight
    readonly property bool searched: view.searchId > -2 && view.searchId === rowId
    readonly property int iconRound: view.iconRound
    readonly property bool renaming: renameField.visible
    readonly property bool renamable: tree.onTextChanged !== null && rowId >= 0
    property bool wasRenaming: false
    property bool held: false
    readonly property string name: live && rowModel.name !== undefined ? rowModel.name : "?"
    // For a screen reader, which is told of no other change of a row than that of its words.
    readonly property bool accessibleExpandable: folder
    readonly property bool accessibleExpanded: rowData.isExpanded === true

    function accessibleText() {
        var words = [qsTr("Level %1").arg(depth + 2)];
        if (folder)
            words.push(accessibleExpanded ? qsTr("open") : qsTr("closed"));
        if (prohibited)
            words.push(qsTr("prohibited"));
        return words.join(", ");
    }

    function accessiblePressAction() {
        tree.selected.select(delegate);
    }

    // The keys act on what is selected, so the row that gets them has to be.
    function accessibleSetFocusAction() {
        if (isCurrent() && tree.selection.isSelected(index))
            forceActiveFocus();
        else
            tree.selected.select(delegate);
    }

    function accessibleToggleAction() {
        toggleOpen();
    }

    function toggleOpen() {
        if (!folder)
            return;
        view.finishRename();
        if (view.isExpanded(index))
            view.collapse(index);
        else
            view.expand(index);
    }

    function updateIcon() {
        if (!live || rowId < 0) {
            icon.source = "";
            return;
        }
        var rich = !tree.simpleDisplay && !folder;
        if (!(rich ? tree.getIconFilename : tree.getSimpleIconFilename)) {
            icon.source = folder ? "../../../icon/mini_folder.png" : "../../../icon/object.png";
            return;
        }
        if (!tree.treeListModel.getModelIndexById(rowId).valid) {
            iconRetryTimer.start();
            return;
        }
        icon.source = rich ? tree.getIconFilename(null, index, 0) : tree.getSimpleIconFilename(index);
    }

    function readSign(inside) {
        return live && rowId >= 0 && tree.signOf ? tree.signOf(rowId, inside) : -1;
    }

    function signText() {
        return tree.signTextOf ? tree.signTextOf(rowId, ownSign < 0) : "";
    }

    /// Shows the words of the sign, or hides them, and says whether there is a sign.
    function toggleSignText() {
        if (signLoader.item)
            signLoader.item.toggleText();
        return signLoader.item !== null;
    }

    function copyFolderFlag() {
        var row = view.rowIndexMapper[rowNumber];
        if (row)
            row.folder = folder;
    }

    /// Ends the drag of this row before the button is released.
    function endDrag() {
        held = false;
        content.Drag.cancel();
    }

    /// Keeps the dragged row at that y of the view.
    function holdAt(y) {
        content.y += y - content.mapToItem(view, 0, content.height / 2).y;
    }

    function startRename() {
        renameTimer.stop();
        renameField.open(rowModel.name);
    }

    function finishRename() {
        renameField.finish();
    }

    function clickWith(modifiers) {
        var selection = tree.selection;
        if (!index.valid) {
            tree.selected.clear();
        } else if (tree.multiple && modifiers & Qt.ControlModifier) {
            toggle();
            view.keys.leadId = rowId;
        } else if (tree.multiple && modifiers & Qt.ShiftModifier) {
            view.keys.leadId = rowId;
            selection.setSelectedBetweenCurrentAnd(index);
        } else if (isCurrent() && selection.isSelected(index) && !wasRenaming && renamable
                   && tree.clickRenameEnabled) {
            renameTimer.start();
        } else {
            tree.selected.select(delegate);
            tree.itemClicked(rowId);
        }
    }

    function isCurrent() {
        return tree.getIdByIndex(tree.selection.currentIndex) === rowId;
    }

    function toggle() {
        var selection = tree.selection;
        if (!selection.isSelected(index)) {
            selection.select(index, ItemSelectionModel.Select);
            return;
        }
        selection.select(index, ItemSelectionModel.Deselect);
        if (selection.getSelectedCount() !== 1)
            return;
        var restId = tree.getIdByIndex(selection.getFirstSelectedModelIndex());
        if (tree.getIdByIndex(selection.currentIndex) === restId)
            return;
        tree.selected.fill(tree.getItemById(restId), restId);
        tree.selected.tell();
        tree.itemClicked(rowId);
    }

    function rightClick() {
        if (rowId < 0)
            tree.selected.clear();
        else if (tree.selection.getSelectedIdList().indexOf(rowId) < 0)
            tree.selected.select(delegate);
        tree.popupContextMenu();
    }

    Accessible.role: Accessible.TreeItem
    Accessible.name: sign < 0 ? name : name + ", " + signText()
    Accessible.description: accessibleText()
    Accessible.focusable: true
    Accessible.selectable: true
    Accessible.selected: rowData.selected === true

    acceptedButtons: Qt.LeftButton | Qt.RightButton
    drag.target: held && rowId >= 0 ? content : null
    // Else the row would lag behind the mouse by the distance that starts a drag.
    drag.smoothed: false
    drag.axis: tree.dragKeys.length === 0 ? Drag.YAxis : Drag.XAndYAxis

    onSearchedChanged: if (searched) view.searchedItem = delegate
    onIconRoundChanged: updateIcon()
    onRowIdChanged: {
        renameTimer.stop();
        renameField.visible = false;
        updateIcon();
    }
    onRowNumberChanged: copyFolderFlag()
    onFolderChanged: {
        copyFolderFlag();
        updateIcon();
    }
    Component.onCompleted: {
        copyFolderFlag();
        updateIcon();
    }
    Component.onDestruction: delete view.rowIndexMapper[rowNumber]

    onPressed: {
        wasRenaming = renaming;
        forceActiveFocus();
        held = mouse.button === Qt.LeftButton && tree.dragAndDropEnabled
                && (!tree.draggableCallback || tree.draggableCallback(rowId) === true);
        dropArea.moveMouse(mapToItem(view, mouse.x, mouse.y));
    }
    onPositionChanged: {
        if (held && mouse.buttons & Qt.LeftButton)
            dropArea.moveMouse(mapToItem(view, mouse.x, mouse.y));
    }
    onReleased: held = false
    onCanceled: held = false
    onClicked: {
        if (mouse.button === Qt.RightButton)
            rightClick();
        else
            clickWith(mouse.modifiers);
    }
    onDoubleClicked: {
        if (mouse.button !== Qt.LeftButton)
            return;
        renameTimer.stop();
        tree.itemDoubleClicked(rowId);
        toggleOpen();
    }

    Item {
        id: content

        x: 8
        y: (delegate.height - height) / 2
        width: delegate.width - 8
        height: delegate.itemHeight
        // Where a name was typed, once its field is gone.
        onActiveFocusChanged: if (activeFocus) delegate.forceActiveFocus()

        Drag.active: delegate.drag.active
        Drag.source: delegate
        Drag.hotSpot: Qt.point(width / 2, height / 2)
        Drag.keys: delegate.tree.dragKeys.length === 0 ? ["TreeList/Item"] : delegate.tree.dragKeys
        Drag.mimeData: {
            var data = {};
            data[delegate.tree.dragKeys.length === 1 ? delegate.tree.dragKeys[0] : "TreeList/Item"] = delegate.rowId;
            return data;
        }
        Drag.dragType: delegate.tree.dragKeys.length === 0 ? Drag.Internal : Drag.Automatic
        Drag.supportedActions: delegate.tree.dragKeys.length === 0 ? Qt.MoveAction : Qt.CopyAction
        Drag.proposedAction: delegate.tree.dragKeys.length === 0 ? Qt.MoveAction : Qt.CopyAction
        Drag.onActiveChanged: {
            if (Drag.active)
                return;
            x = 8;
            y = Qt.binding(function() { return (delegate.height - height) / 2; });
        }

        Image {
            id: icon

            readonly property bool small: delegate.tree.simpleDisplay || delegate.folder

            // An icon that is wider than its place keeps its right edge there.
            x: delegate.tree.simpleDisplay ? Math.min(0, 16 - implicitIconWidth) : 0
            readonly property real implicitIconWidth: implicitHeight > 0 ? implicitWidth * height / implicitHeight : 0
            anchors.verticalCenter: parent.verticalCenter
            height: small ? 16 : 60
            width: delegate.tree.simpleDisplay ? Math.max(16, implicitIconWidth) : implicitIconWidth
            fillMode: Image.PreserveAspectFit
            cache: false
        }

        Text {
            anchors.left: icon.right
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            leftPadding: 4
            rightPadding: delegate.sign < 0 ? 32 : 52
            visible: !renameField.visible
            elide: Text.ElideRight
            maximumLineCount: 1
            textFormat: Text.PlainText
            color: delegate.rowData.selected ? Theme.selectedRowText : Theme.normalText
            text: delegate.name
        }

        TreeListRenameField {
            id: renameField
            objectName: "renameField"
            anchors.left: icon.right
            anchors.verticalCenter: parent.verticalCenter
            delegate: delegate
            maximumWidth: parent.width - icon.x - icon.width - 4
        }

        Loader {
            id: signLoader
            objectName: "sign"
            anchors.right: prohibition.left
            anchors.rightMargin: 2
            anchors.verticalCenter: parent.verticalCenter
            active: delegate.sign >= 0 && !renameField.visible
            sourceComponent: signComponent
        }

        TreeListProhibition {
            id: prohibition
            objectName: "prohibition"
            x: delegate.view.viewport.width - 54 - delegate.depth * 20 - width
            anchors.verticalCenter: parent.verticalCenter
            delegate: delegate
        }
    }

    Component {
        id: signComponent

        TreeListSign {
            owner: delegate
        }
    }

    TreeListFolderFrame {
        x: -delegate.depth * 20 - 39
        width: delegate.view.viewport.width
        height: delegate.itemHeight
        visible: delegate.live && delegate.tree.dndTargetFolderId === delegate.rowId
    }

    Timer {
        id: renameTimer
        interval: 500
        onTriggered: delegate.startRename()
    }

    Timer {
        id: iconRetryTimer
        interval: 100
        onTriggered: delegate.updateIcon()
    }
}
