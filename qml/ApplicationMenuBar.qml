import QtQuick 2.9
import QtQuick.Controls 1.4
import Morvi.kess 1.0

/// The menus of the authoring mode. Its texts belong to the application window.
MenuBar {
    id: root

    /// The application window, whose functions the entries call.
    property ApplicationWindow window: null
    /// Whether one of the menus is open, which then has the keys.
    readonly property bool open: fileMenu.__popupVisible || editMenu.__popupVisible || helpMenu.__popupVisible
    readonly property bool tutorialLoaded: TutorialManager.tutorialName !== ""

    signal problemsRequested()
    signal translationRequested()
    signal licenseRequested()
    signal eventDialogRequested()

    function unloadTutorial(then) {
        window.checkSaveTutorial(function(result) {
            if (result < 0)
                return;
            window.unload();
            TutorialManager.unload();
            if (then)
                then();
        });
    }

    // The toolkit's menu bar, which takes the key Alt for its own, would take the next letter for a menu's,
    // and the focus at the next Alt.
    function forgetAlt() {
        __contentItem.item.__altPressed = false;
    }

    Menu {
        id: fileMenu
        objectName: "file"
        title: qsTranslate("main", "&File")

        MenuItem {
            text: qsTranslate("main", "&Open tutorial")
            shortcut: StandardKey.Open
            onTriggered: root.unloadTutorial(root.window.openTutorial)
        }

        MenuItem {
            text: qsTranslate("main", "Close tutorial")
            shortcut: StandardKey.Close
            enabled: root.tutorialLoaded
            onTriggered: root.unloadTutorial(null)
        }

        MenuItem {
            text: qsTranslate("main", "Save tutorial")
            shortcut: StandardKey.Save
            enabled: root.tutorialLoaded
            onTriggered: root.window.saveTutorial()
        }

        MenuItem {
            text: qsTranslate("main", "Open tutorial folder")
            onTriggered: {
                var folder = TutorialManager.getTutorialPath();
                if (folder !== "")
                    SystemService.openDesktopFolder(folder);
            }
        }

        MenuSeparator {}

        MenuItem {
            text: qsTranslate("main", "Exit")
            shortcut: StandardKey.Quit
            onTriggered: root.window.exit()
        }
    }

    Menu {
        id: editMenu
        objectName: "edit"
        title: qsTranslate("main", "&Edit")

        ForwardedMenuItem {
            text: qsTranslate("main", "&Add folder")
            activeMenu: root.window.activeMenu
            member: "addFolderMi"
        }

        ForwardedMenuItem {
            text: qsTranslate("main", "Create &item")
            activeMenu: root.window.activeMenu
            member: "addItemMi"
        }

        ForwardedMenuItem {
            text: qsTranslate("main", "Copy")
            shortcut: StandardKey.Copy
            activeMenu: root.window.activeMenu
            member: "copyMi"
        }

        ForwardedMenuItem {
            text: qsTranslate("main", "Cut")
            shortcut: StandardKey.Cut
            activeMenu: root.window.activeMenu
            member: "cutMi"
        }

        ForwardedMenuItem {
            text: qsTranslate("main", "Paste")
            shortcut: StandardKey.Paste
            activeMenu: root.window.activeMenu
            member: "pasteMi"
        }

        ForwardedMenuItem {
            text: qsTranslate("main", "Delete")
            shortcut: StandardKey.Delete
            activeMenu: root.window.activeMenu
            member: "deleteMi"
        }

        MenuSeparator {}

        ForwardedMenuItem {
            text: qsTranslate("main", "Move up")
            shortcut: "Alt+Up"
            activeMenu: root.window.activeMenu
            member: "moveUpMi"
        }

        ForwardedMenuItem {
            text: qsTranslate("main", "Move down")
            shortcut: "Alt+Down"
            activeMenu: root.window.activeMenu
            member: "moveDownMi"
        }

        ForwardedMenuItem {
            text: qsTranslate("main", "Move into the folder")
            shortcut: "Alt+Right"
            activeMenu: root.window.activeMenu
            member: "moveInMi"
        }

        ForwardedMenuItem {
            text: qsTranslate("main", "Move out of the folder")
            shortcut: "Alt+Left"
            activeMenu: root.window.activeMenu
            member: "moveOutMi"
        }

        ForwardedMenuItem {
            text: qsTranslate("main", "Prohibit or permit (Space)")
            activeMenu: root.window.activeMenu
            member: "prohibitMi"
        }

        MenuSeparator {}

        MenuItem {
            objectName: "undo"
            text: qsTranslate("main", "&Undo")
            shortcut: StandardKey.Undo
            enabled: UndoRedo.canUndo
            onTriggered: root.window.undo()
        }

        MenuItem {
            text: qsTranslate("main", "&Redo")
            shortcut: StandardKey.Redo
            enabled: UndoRedo.canRedo
            onTriggered: root.window.redo()
        }

        MenuSeparator {}

        MenuItem {
            text: qsTranslate("main", "Start tutorial")
            shortcut: StandardKey.Refresh
            enabled: root.tutorialLoaded
            onTriggered: root.window.startFromId(-1)
        }

        MenuItem {
            text: qsTranslate("main", "Start current")
            shortcut: "F6"
            enabled: root.tutorialLoaded
            onTriggered: root.window.startFromId(root.window.currentId())
        }

        MenuSeparator {}

        MenuItem {
            text: qsTranslate("main", "Check tutorial")
            shortcut: "F8"
            onTriggered: root.problemsRequested()
        }

        MenuItem {
            text: qsTranslate("main", "Translation")
            shortcut: "F9"
            onTriggered: root.translationRequested()
        }
    }

    Menu {
        id: helpMenu
        objectName: "help"
        title: qsTranslate("main", "&Help")

        MenuItem {
            text: qsTranslate("main", "&Version")
            onTriggered: root.window.showMessage(qsTranslate("main", "Version:") + "VERSION")
        }

        MenuItem {
            text: qsTranslate("main", "&License")
            onTriggered: root.licenseRequested()
        }

        MenuItem {
            text: qsTranslate("main", "Tutorial &event")
            onTriggered: root.eventDialogRequested()
        }

        MenuSeparator {}

        Menu {
            objectName: "language"
            title: qsTranslate("main", "Lan&guage")

            LanguageMenuItem {
                // Each by its own name: who chooses may read no other.
                text: "日本語"
                language: "ja"
                window: root.window
            }

            LanguageMenuItem {
                text: "English"
                language: "en"
                window: root.window
            }
        }
    }
}
