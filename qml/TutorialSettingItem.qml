import QtQuick 2.9
import QtQuick.Layouts 1.3
import Morvi.kess 1.0
import "Controls"
import "QtControls"
import "Settings"
import "Settings/jumptree.js" as JumpTree
import "Singletons"

/// The tutorial editor: the tree of items, and the settings of the selected
/// one.
ItemFields {
    id: root

    objectName: "TutorialSettingItem"

    /// The event dialog, once it is loaded: whatever has its two signals.
    property var tutorialEventDialog: null
    property var selectedIdList: []
    readonly property var localeList: ["ja_JP", "en_US"]
    readonly property alias treeListView: treePane.treeListView
    readonly property alias problems: tutorialProblems
    property string shownTutorial: ""

    function getCurrentId() {
        return itemId;
    }

    function unload() {
    }

    function updateSelectedItem() {
        var index = treeListView.selectedItem;
        if (!index || !index.valid)
            return;
        commitEditing();
        itemId = tutorialItemListModel.data(index, tutorialItemListModel.RoleId);
        readItem();
    }

    /// Shows the document that has taken the place of the former one. The item
    /// stays selected, and folders open, where the same tutorial was read again.
    function showDocument() {
        if (TutorialManager.tutorialName === shownTutorial) {
            treeListView.reread();
        } else {
            shownTutorial = TutorialManager.tutorialName;
            tutorialItemListModel.refresh();
            treeListView.refresh();
        }
        if (!tutorialItemListModel.exists(itemId))
            itemId = -1;
        readItem();
        treeListView.focusId = itemId;
        treeListView.focusOn();
    }

    function updateSettings() {
        if (!tutorialItemListModel.exists(itemId))
            itemId = -1;
        readItem();
        if (itemId < 0)
            focusOnFirst();
    }

    function focusOnFirst() {
        treeListView.focusId = -1;
        treeListView.focusOn();
    }

    function updateJumpTreeJson() {
        var treeJson = tutorialItemListModel.getTreeJson();
        try {
            treeJson = JumpTree.forItem(treeJson, itemId, qsTr("(Next)"));
        } catch (error) {
            console.log("TutorialSettingItem: " + error);
        }
        var alreadyUpdating = updating;
        updating = true;
        settingsForm.jumpTreeJson = treeJson;
        updating = alreadyUpdating;
    }

    // The rows are in line with the document, and the fields come after them. A
    // step back or forth is shown in the tree.
    function followDocument(showIds) {
        if (!tutorialItemListModel.exists(itemId))
            itemId = -1;
        readFields();
        if (showIds.length > 0)
            treeListView.showIdList(showIds);
    }

    // It comes after a step back or forth.
    function followJumpLink() {
        treeListView.follow();
        if (itemId < 0)
            focusOnFirst();
    }

    /// Selects a step and shows it in the tree.
    function showStep(id) {
        if (!tutorialItemListModel.exists(id))
            return;
        treePane.forceActiveFocus();
        treeListView.showIdList([id]);
    }

    // Edits of the tree

    function addItem(targetId) {
        commitEditing();
        UndoRedo.beginSequence("addTutorialItem");
        var id = tutorialItemListModel.addItem(targetId);
        UndoRedo.endSequence();
        treeListView.follow();
        treeListView.autoActiveFocusOneShot = true;
        treeListView.focusId = id;
        treeListView.focusOn();
    }

    function addFolder(targetId) {
        commitEditing();
        treeListView.addFolder(targetId);
    }

    function deleteIdList(idList) {
        if (idList.length === 0)
            return;
        commitEditing();
        UndoRedo.beginSequence("deleteTutorialItem");
        treeListView.deleteIdList(idList);
        UndoRedo.endSequence();
    }

    function copyItems() {
        commitEditing();
        TutorialManager.copyTutorialItemList(selectedIdList);
    }

    function pasteItems() {
        commitEditing();
        UndoRedo.beginSequence("pasteTutorialItemList");
        var idList = TutorialManager.pasteTutorialItemList();
        UndoRedo.endSequence();
        treeListView.follow();
        if (idList.length > 0)
            treeListView.setSelectedIdList(idList);
    }

    // A name that is being typed in the tree would go with its row.

    function moveItems(step) {
        applicationWindow.menuBar.forgetAlt();
        if (applicationWindow.commitEditing())
            treeListView.edits.moveByStep(step);
    }

    function toggleProhibited() {
        if (applicationWindow.commitEditing())
            treeListView.edits.toggleProhibited();
    }

    function changeName(sequence, index, name) {
        UndoRedo.beginSequence(sequence);
        tutorialItemListModel.changeItemName(index, name);
        UndoRedo.endSequence();
    }

    // The tree calls this when a name was typed into a row.
    function onTextChanged(index, text) {
        if (refuses(text))
            return;
        var newText = tutorialItemListModel.getValidName(text);
        if (newText === text) {
            changeName("changeSceneName", index, text);
            return;
        }
        // The row may stand elsewhere, or be gone, by the time of the answer.
        var id = tutorialItemListModel.data(index, tutorialItemListModel.RoleId);
        nameChangeDialog.dialogNameChange(text, newText, function() {
            if (tutorialItemListModel.exists(id))
                changeName("changeName", tutorialItemListModel.getModelIndexById(id), newText);
        });
    }

    // The language

    function chooseLocale(locale) {
        if (locale === TutorialManager.locale)
            return;
        commitEditing();
        if (!TutorialManager.modified) {
            changeLocale(locale);
            return;
        }
        var question = qsTr("The tutorial is needed to be reloaded to apply the translation.\n"
                            + "Do you save tutorial?");
        function finish(saved) {
            if (saved)
                changeLocale(locale);
            else
                bottomArea.showLocale();
        }
        applicationWindow.confirm(null, question, function(result) {
            if (result === 1)
                applicationWindow.saveTutorialAnd(finish);
            else
                finish(false);
        }, root);
    }

    function changeLocale(locale) {
        TutorialManager.locale = locale;
        applicationWindow.reloadTutorial();
    }

    model: tutorialItemListModel
    form: settingsForm
    itemId: selectedIdList.length === 1 ? selectedIdList[0] : -1

    Keys.onPressed: {
        if (event.key === Qt.Key_F4) {
            if (!folder)
                captureCursor();
            event.accepted = true;
        } else if (event.key === Qt.Key_X) {
            console.log("Ignore cut");
            event.accepted = true;
        }
    }

    MouseArea {
        anchors.fill: parent
        onPressed: root.forceActiveFocus()
    }

    SplitView {
        anchors {
            top: parent.top
            left: parent.left
            right: parent.right
            bottom: bottomArea.top
        }
        orientation: Qt.Horizontal
        enabled: TutorialManager.tutorialName !== ""

        TreePane {
            id: treePane
            width: 220
            focus: true
            Layout.minimumWidth: 200
            treeListView.treeListModel: tutorialItemListModel
            treeListView.contextMenu: itemMenu
            treeListView.keysEnabled: !applicationWindow.menuBar || !applicationWindow.menuBar.open
            treeListView.updateSelectedItem: root.updateSelectedItem
            treeListView.onTextChanged: root.onTextChanged
            problems: tutorialProblems
            onFolderRequested: root.addFolder(root.itemId)
            onItemRequested: root.addItem(root.itemId)
            onDeleteRequested: root.deleteIdList(root.selectedIdList)
        }

        Item {
            Layout.fillWidth: true
            Layout.minimumWidth: 200
            enabled: root.itemId >= 0 && !root.folder

            SettingsForm {
                id: settingsForm
                anchors.fill: parent
                anchors.margins: Theme.margin
                screen: root
                localeList: root.localeList
                title: qsTr("Settings") + " #" + root.itemId
                onJumpTreeRequested: root.updateJumpTreeJson()
            }
        }
    }

    BottomArea {
        id: bottomArea
        anchors {
            left: parent.left
            right: parent.right
            bottom: parent.bottom
        }
        localeList: root.localeList
        onLocaleChosen: root.chooseLocale(locale)
    }

    TutorialItemMenu {
        id: itemMenu
        anySelected: root.selectedIdList.length > 0
        rootSelected: !anySelected && treeListView.isFolder
        onFolderRequested: root.addFolder(root.itemId)
        onItemRequested: root.addItem(root.itemId)
        onCopyRequested: root.copyItems()
        onPasteRequested: root.pasteItems()
        onDeleteRequested: root.deleteIdList(root.selectedIdList)
        onMoveRequested: root.moveItems(step)
        onProhibitRequested: root.toggleProhibited()
    }

    TutorialItemListModel {
        id: tutorialItemListModel
        onErrorOccurred: {
            alertDialog.text = message;
            alertDialog.open();
        }
    }

    TutorialProblems {
        id: tutorialProblems
        history: UndoRedo
    }

    AlertDialog {
        id: alertDialog
    }

    NameChangeDialog {
        id: nameChangeDialog
    }

    // In place of Connections, whose handlers Qt 5.15 wants in a form that older
    // releases don't know.
    Component.onCompleted: {
        // A button without a menu would not open one.
        updateJumpTreeJson();
        treeListView.selectedItemChanged.connect(updateSelectedItem);
        treeListView.selectedIdListChanged.connect(function(idList) {
            selectedIdList = idList;
            updateSelectedItem();
        });
        treeListView.treeChanged.connect(settingsForm.showJumpNames);
        treeListView.followed.connect(followDocument);
        treeListView.itemDoubleClicked.connect(function(id) {
            applicationWindow.startFromId(id);
        });
        TutorialManager.jumpLinkChanged.connect(followJumpLink);
        TutorialManager.documentReplaced.connect(showDocument);
        TutorialManager.actionIdChanged.connect(function(actionId) {
            treeListView.focusId = actionId;
            treeListView.focusOn();
        });
    }

    onTutorialEventDialogChanged: {
        if (!tutorialEventDialog)
            return;
        tutorialEventDialog.eventUpdateRequested.connect(function(eventText) {
            if (!folder)
                condition = eventText;
        });
        tutorialEventDialog.controlNameUpdateRequested.connect(function(controlName) {
            if (!folder)
                takeWindowKey(controlName);
        });
    }
}
