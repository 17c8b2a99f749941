import QtQuick 2.9
import QtQuick.Window 2.2
import Qt.labs.settings 1.0
import Morvi.kess 1.0
import "QtControls"
import "Singletons"
import "Translation"

/// The hints of all steps in both languages side by side, to be translated
/// without the mouse.
Window {
    id: root

    /// Hands over what is being typed.
    function commitEditing() {
        table.commit();
    }

    /// Shows the hints of that step, where the filter lets them.
    function showStep(id) {
        if (!table.goToId(id))
            table.goTo(0, true);
        table.takeKeys();
    }

    function setFilter() {
        table.commit();
        hintModel.setFilter(filterBar.filter, filterBar.text);
    }

    function choose(filter) {
        filterBar.choose(filter);
        // Where nothing is to be done, any row is as good.
        table.goToWork(hintModel.nextToDo(-1));
        table.takeKeys();
    }

    /// To the next of the filter, the search, the table and the buttons, since the Tab key goes from
    /// hint to hint.
    function goToNextPart() {
        var item = activeFocusItem;
        var leaving = isIn(item, filterBar) ? filterBar : isIn(item, buttons) ? buttons : table;
        if (leaving === filterBar && !filterBar.searching)
            filterBar.takeKeys();
        else if (leaving === filterBar)
            table.takeKeys();
        else
            (leaving === table ? buttons : filterBar).nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason);
    }

    function isIn(item, ancestor) {
        while (item && item !== ancestor)
            item = item.parent;
        return item === ancestor;
    }

    function confirmTranslation() {
        table.commit();
        TutorialManager.confirmTranslation(table.currentId);
    }

    // Through a translator's own tool.

    function exportTranslation(file) {
        table.commit();
        var error = TutorialManager.exportTranslation(file);
        if (error !== "")
            applicationWindow.alert(error, null, table);
    }

    function importTranslation(file) {
        table.commit();
        var result = TutorialManager.importTranslation(file);
        if (result.error)
            applicationWindow.alert(result.error, null, table);
        else
            applicationWindow.showMessage(result.report, null, table);
    }

    objectName: "TranslationWindow"
    title: qsTr("Translation") + (TutorialManager.tutorialName === "" ? "" : " - " + TutorialManager.tutorialName)
           + (TutorialManager.modified ? "*" : "")
    flags: Qt.Window | Qt.WindowTitleHint | Qt.WindowSystemMenuHint | Qt.WindowCloseButtonHint
           | Qt.WindowMinimizeButtonHint | Qt.WindowMaximizeButtonHint
    width: 966
    height: 640
    minimumWidth: 560
    minimumHeight: 240
    color: Theme.window2

    onClosing: commitEditing()

    Settings {
        category: "TranslationWindow.root"
        property alias x: root.x
        property alias y: root.y
        property alias width: root.width
        property alias height: root.height
    }

    HintTableModel {
        id: hintModel
        history: UndoRedo
        active: root.visible
    }

    TranslationKeys {
        onFilterRequested: root.choose(filter)
        onSearchRequested: filterBar.takeKeys()
        onNextRequested: table.goToNextWork()
        onConfirmRequested: root.confirmTranslation()
        onPartRequested: root.goToNextPart()
    }

    FilterBar {
        id: filterBar
        x: 8
        y: 6
        height: 28
        hints: hintModel
        onChosen: root.setFilter()
        onTableRequested: table.takeKeys()
    }

    HintTable {
        id: table
        objectName: "hintTable"
        anchors {
            top: filterBar.bottom
            left: parent.left
            right: parent.right
            bottom: buttons.top
            margins: Theme.margin
        }
        focus: true
        hints: hintModel
    }

    Text {
        Accessible.role: Accessible.StaticText
        Accessible.name: text
        anchors {
            left: parent.left
            right: buttons.left
            verticalCenter: buttons.verticalCenter
            margins: 8
        }
        wrapMode: Text.Wrap
        maximumLineCount: 2
        elide: Text.ElideRight
        font.pixelSize: 12
        text: qsTr("Tab, Ctrl+Enter: next cell, next row. F2: into the text. Esc: give up. "
                   + "Ctrl+1, 2, 3: all, missing, stale. Ctrl+F: search. F6: next part.")
    }

    Row {
        id: buttons
        anchors {
            right: parent.right
            bottom: parent.bottom
            margins: 8
        }
        spacing: 4

        Button {
            objectName: "exportButton"
            text: qsTr("Export XLIFF...")
            enabled: hintModel.allCount > 0
            onClicked: exportDialog.open()
        }

        Button {
            objectName: "importButton"
            text: qsTr("Import XLIFF...")
            enabled: hintModel.allCount > 0
            onClicked: importDialog.open()
        }

        Button {
            objectName: "nextButton"
            text: qsTr("Next to do (F3)")
            enabled: hintModel.missingCount + hintModel.staleCount > 0
            onClicked: table.goToNextWork()
        }

        Button {
            objectName: "confirmButton"
            text: qsTr("The translation stands (F7)")
            enabled: hintModel.staleCount > 0
            onClicked: root.confirmTranslation()
        }
    }

    XliffDialog {
        id: exportDialog
        title: qsTr("Export XLIFF")
        selectExisting: false
        onChosen: root.exportTranslation(file)
    }

    XliffDialog {
        id: importDialog
        title: qsTr("Import XLIFF")
        onChosen: root.importTranslation(file)
    }

    // In place of Connections, whose handlers Qt 5.15 wants in a form that older
    // releases don't know.
    Component.onCompleted: {
        UndoRedo.stepped.connect(function(itemIds) {
            if (visible && itemIds.length > 0)
                table.goToId(itemIds[0]);
        });
    }
}
