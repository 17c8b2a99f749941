import QtQuick 2.9
import QtQuick.Controls 1.4
import QtQuick.Window 2.2
import Qt.labs.settings 1.0
import Morvi.kess 1.0

/// The root of both modes. In the guidance mode it carries nothing but the
/// conversion service; in the authoring mode it is the tutorial editor.
ApplicationWindow {
    id: applicationWindow

    readonly property bool authoring: TutorialManager.isMakingSupported()
    property alias ready: conversionService.ready
    property alias list: conversionService.list
    property alias webEngineView: conversionService.webEngineView
    /// The context menu of the list that has the focus, or null: whatever has the
    /// members that the menu bar forwards to.
    property var activeMenu: null
    /// What the window opens. The guidance mode has it only once it is asked for.
    readonly property Item parts: partsLoader.item
    readonly property Item debugText: parts ? parts.debugText : null
    /// The TutorialSettingItem. By its type the guidance mode would load it too.
    readonly property Item settingScreen: settingLoader.item
    readonly property Item messages: parts ? parts.messages : null
    /// Where the keys go while the menu bar does not have them.
    property Item typingItem: null
    // Read by the platform when the window is shown: in the guidance mode the
    // host editor keeps the keys.
    readonly property bool _q_showWithoutActivating: !authoring

    // Called by name with each "coffeeJs" message.
    function requestCoffeeJs(key, coffeeScript) {
        conversionService.requestCoffeeJs(key, coffeeScript);
    }

    function processList() {
        conversionService.processList();
    }

    function loadedParts() {
        partsLoader.active = true;
        return partsLoader.item;
    }

    /// Asks about unsaved changes: 1 saved, 0 not saved or nothing to save,
    /// below 0 stay where you are.
    function checkSaveTutorial(callback) {
        loadedParts().file.checkSave(callback);
    }

    function openTutorial() {
        loadedParts().file.open();
    }

    function reloadTutorial() {
        if (TutorialManager.tutorialName === "")
            return;
        var refusal = TutorialManager.findUnreloadable();
        if (refusal !== "") {
            alert(refusal);
            return;
        }
        unload();
        // The steps of the history belong to the document as it was.
        UndoRedo.clear();
        var error = TutorialManager.reload();
        updateSettings();
        if (error !== "")
            alert(error);
    }

    // A field that is being edited hands over its text when it loses the focus.
    // Afterwards typing goes on where it was. False when a text was refused.
    function commitEditing() {
        var refusals = settingScreen ? settingScreen.refusals : 0;
        Gui.finishComposition();
        if (settingScreen)
            settingScreen.treeListView.finishRename();
        if (parts)
            parts.commitEditing();
        // While another window is active, none has the focus here.
        var item = activeFocusItem || typingItem;
        // What has no text keeps the keys: a screen reader would say it anew.
        if (item && item.cursorPosition !== undefined)
            background.forceActiveFocus();
        focusBack(item);
        return !settingScreen || settingScreen.refusals === refusals;
    }

    // Where the item is gone from view, as the field of a rename is, the keys go to what holds it.
    function focusBack(item) {
        while (item && !(item.visible && item.enabled))
            item = item.parent;
        if (item)
            item.forceActiveFocus();
    }

    // What menus, buttons and keys do alike; whatever is being typed comes first.

    function saveTutorial() {
        saveTutorialAnd(function() {});
    }

    /// Saves the tutorial. `callback` gets whether it was saved; the reason for
    /// a failure is shown here.
    function saveTutorialAnd(callback) {
        if (commitEditing())
            loadedParts().file.save("", callback);
        else
            callback(false);
    }

    function undo() {
        if (commitEditing())
            UndoRedo.undo();
    }

    function redo() {
        if (commitEditing())
            UndoRedo.redo();
    }

    function startFromId(id) {
        if (commitEditing())
            TutorialManager.startFromId(id);
    }

    function exit() {
        checkSaveTutorial(function(result) {
            if (result < 0)
                return;
            TutorialManager.recovery.forgetChanges();
            TutorialManager.requestClose();
        });
    }

    function unload() {
        if (settingScreen)
            settingScreen.unload();
    }

    function updateSettings() {
        if (settingScreen)
            settingScreen.updateSettings();
    }

    function currentId() {
        return settingScreen ? settingScreen.getCurrentId() : -1;
    }

    function showMessage(caption, callback, container) {
        loadedParts().messages.showMessage(caption, callback, container);
    }

    function alert(message, callback, container) {
        loadedParts().messages.alert(message, callback, container);
    }

    function confirm(title, text, callback, container) {
        loadedParts().messages.confirm(title, text, callback, container);
    }

    /// Goes to a step for another window.
    function showStep(id) {
        Gui.present(applicationWindow);
        settingScreen.showStep(id);
    }

    function showEventDialog() {
        Gui.present(eventLoader.item);
    }

    function startAuthoring() {
        // At the first start the menus must not lie above the screen.
        if (width === 1 && height === 1)
            y = 64;
        if (width === 1)
            width = 966;
        if (height === 1)
            height = 788;
        menuBar = loadedParts().makeMenuBar();
        var folder = SystemService.debug() ? "../Trelvane/" : "tutorial-win/";
        TutorialManager.loadTutorial(folder + "qml/Tutorial/TutorialSideViewStep0.js");
        updateSettings();
        // What it asks comes once this window is there.
        Qt.callLater(function() { TutorialManager.recovery.begin(UndoRedo); });
    }

    x: 0
    y: -64
    width: 1
    height: 1
    visible: true
    flags: authoring ? Qt.Window | Qt.WindowCloseButtonHint | Qt.WindowTitleHint | Qt.WindowSystemMenuHint
                       | Qt.WindowMinimizeButtonHint | Qt.WindowMaximizeButtonHint
                     : Qt.Tool
    title: {
        if (!authoring)
            return qsTr("-");
        if (TutorialManager.tutorialName === "")
            return qsTr("Tutorial editor");
        return (TutorialManager.modified ? "*" : "") + TutorialManager.tutorialName;
    }

    // The toolkit's menu bar takes the focus with Escape and Alt and keeps it.
    onActiveFocusItemChanged: {
        if (menuBar && activeFocusItem === menuBar.__contentItem.parent)
            Qt.callLater(focusBack, typingItem);
        else if (activeFocusItem)
            typingItem = activeFocusItem;
    }
    onClosing: {
        if (!commitEditing()) {
            close.accepted = false;
            return;
        }
        if (!TutorialManager.modified) {
            TutorialManager.requestClose();
            return;
        }
        close.accepted = false;
        checkSaveTutorial(function(result) {
            if (result < 0)
                return;
            unload();
            TutorialManager.unload();
            delayTimer.start();
        });
    }

    Component.onCompleted: {
        console.log("connected:", TutorialManager.connected(), "flags:", flags);
        // What is remembered has been read now.
        if (authoring)
            Gui.bringIntoSight(applicationWindow);
    }

    Settings {
        category: applicationWindow.authoring ? "main.applicationWindow" : "main.applicationWindow-"
        property alias x: applicationWindow.x
        property alias y: applicationWindow.y
        property alias width: applicationWindow.width
        property alias height: applicationWindow.height
    }

    MouseArea {
        id: background
        anchors.fill: parent
        onPressed: {
            console.log("main: pressed at", mouse.x, mouse.y);
            forceActiveFocus();
        }
    }

    ConversionService {
        id: conversionService
        active: !applicationWindow.authoring
    }

    Loader {
        id: settingLoader
        anchors.fill: parent
        focus: true
        active: applicationWindow.authoring
        source: "TutorialSettingItem.qml"
        onLoaded: applicationWindow.startAuthoring()
    }

    Loader {
        id: eventLoader
        active: applicationWindow.authoring && settingLoader.progress === 1
        source: "TutorialEventDialog.qml"
        onLoaded: {
            applicationWindow.settingScreen.tutorialEventDialog = item;
            Gui.bringIntoSight(item);
        }
    }

    Loader {
        id: partsLoader
        anchors.fill: parent
        active: applicationWindow.authoring
        source: "WindowParts.qml"
    }

    // A close from inside the handler of the closing would have no effect.
    Timer {
        id: delayTimer
        interval: 100
        onTriggered: TutorialManager.requestClose()
    }
}
