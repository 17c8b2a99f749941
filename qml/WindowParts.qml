import QtQuick 2.9
import QtQuick.Controls 1.4
import Morvi.kess 1.0

/// What the application window opens: its menus, message boxes and dialogs.
/// Apart from it, so that the link of the guidance mode doesn't wait for them.
Item {
    id: root

    readonly property ApplicationWindow window: applicationWindow
    readonly property alias messages: messageBoxes
    readonly property alias file: tutorialFile
    readonly property alias debugText: debugPanel.debugText

    function makeMenuBar() {
        return menuBarComponent.createObject(window);
    }

    /// Hands over what is being typed in other windows.
    function commitEditing() {
        if (translationWindow.item)
            translationWindow.item.commitEditing();
    }

    DebugPanel {
        id: debugPanel
        x: 400
        width: parent.width - 400
        height: parent.height
    }

    Messages {
        id: messageBoxes
    }

    TutorialFile {
        id: tutorialFile
        window: root.window
    }

    LicenseWindow {
        id: licenseWindow
    }

    LazyWindow {
        id: problemsWindow
        source: "ProblemsWindow.qml"
        onLoaded: {
            item.problems = root.window.settingScreen.problems;
            item.stepRequested.connect(root.window.showStep);
        }
    }

    LazyWindow {
        id: translationWindow
        source: "TranslationWindow.qml"
    }

    Component {
        id: menuBarComponent

        ApplicationMenuBar {
            window: root.window
            onProblemsRequested: problemsWindow.show()
            onTranslationRequested: {
                translationWindow.show();
                translationWindow.item.showStep(root.window.currentId());
            }
            onLicenseRequested: Gui.present(licenseWindow)
            onEventDialogRequested: root.window.showEventDialog()
        }
    }
}
