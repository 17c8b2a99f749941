import QtQuick 2.9
import Morvi.kess 1.0
import "../Controls"
import "../QtControls"
import "../Singletons"

/// Saving, the language, undo and redo. Its texts belong to the screen.
Rectangle {
    id: root

    property var localeList: []

    signal localeChosen(string locale)

    function showLocale() {
        locales.showLocale();
    }

    // Where the texts of the menu bar stand with their mnemonics.
    function plain(text) {
        return text.replace(/\(&\w\)|&/g, "");
    }

    height: 40 + Theme.margin
    color: Theme.toolArea

    Row {
        id: saving
        anchors {
            left: parent.left
            leftMargin: Theme.margin
            verticalCenter: parent.verticalCenter
        }

        Button {
            objectName: "saveButton"
            text: qsTranslate("TutorialSettingItem", "Save")
            enabled: TutorialManager.tutorialName !== ""
            onClicked: applicationWindow.saveTutorial()
        }
    }

    SeveritySign {
        id: noticeSign
        anchors {
            left: saving.right
            leftMargin: Theme.margin * 2
            verticalCenter: parent.verticalCenter
        }
        severity: notice.text === "" ? -1 : 1
    }

    // In sight until it is over, and in nobody's way.
    Label {
        id: notice
        objectName: "copyNotice"
        anchors {
            left: noticeSign.right
            leftMargin: Theme.margin
            right: history.left
            rightMargin: Theme.margin * 2
        }
        height: parent.height
        visible: text !== ""
        text: TutorialManager.recovery.notice
        wrapMode: Text.Wrap
        elide: Text.ElideRight
    }

    Row {
        id: history
        anchors {
            right: parent.right
            rightMargin: Theme.margin
            verticalCenter: parent.verticalCenter
        }
        spacing: Theme.margin

        Label {
            id: localeLabel
            anchors.verticalCenter: parent.verticalCenter
            text: qsTranslate("TutorialSettingItem", "Translation:")
        }

        ComboBox {
            id: locales

            property bool completed: false

            function showLocale() {
                currentIndex = model.indexOf(TutorialManager.locale);
            }

            objectName: "localeComboBox"
            accessibleName: localeLabel.text
            anchors.verticalCenter: parent.verticalCenter
            width: 128
            model: root.localeList
            onCurrentTextChanged: {
                if (completed && currentIndex >= 0 && currentText === model[currentIndex])
                    root.localeChosen(currentText);
            }
            Component.onCompleted: {
                showLocale();
                completed = true;
                TutorialManager.localeChanged.connect(showLocale);
            }

            WheelGuard {}
        }

        IconButton {
            objectName: "undoButton"
            imageSource: "../../icon/undo.png"
            tooltip: root.plain(qsTranslate("main", "&Undo"))
            enabled: UndoRedo.canUndo
            onClicked: applicationWindow.undo()
        }

        IconButton {
            objectName: "redoButton"
            imageSource: "../../icon/redo.png"
            tooltip: root.plain(qsTranslate("main", "&Redo"))
            enabled: UndoRedo.canRedo
            onClicked: applicationWindow.redo()
        }
    }
}
