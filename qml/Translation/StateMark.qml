import QtQuick 2.9
import "../QtControls"
import "../Singletons"

/// What is to be done about the hints of a row, as a word. Its texts belong to
/// the window.
Rectangle {
    id: root

    /// "missing", "stale", "same" or empty.
    property string hintState: ""
    readonly property alias text: mark.text

    function textOf(hintState) {
        switch (hintState) {
        case "missing":
            return qsTranslate("TranslationWindow", "missing");
        case "stale":
            return qsTranslate("TranslationWindow", "stale");
        case "same":
            return qsTranslate("TranslationWindow", "same");
        }
        return "";
    }

    width: mark.contentWidth + 12
    height: mark.contentHeight + 2
    radius: 2
    visible: hintState !== ""
    color: hintState === "missing" ? Theme.selectedBack : "transparent"
    border.width: hintState === "stale" ? 1 : 0
    border.color: Theme.focusFrame

    Text {
        id: mark
        anchors.centerIn: parent
        text: root.textOf(root.hintState)
        color: root.hintState === "missing" ? Theme.selectedText : Theme.normalText
        font.pixelSize: 12
    }
}
