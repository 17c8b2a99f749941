import QtQuick 2.9
import "../Controls"
import "../QtControls"
import "../Singletons"

/// A problem: how bad it is, the step and the sentence.
Rectangle {
    id: root

    /// The list view of the row.
    property ListView view: null
    property int row: -1
    readonly property bool current: view.currentIndex === row

    signal doubleClicked()

    function severityText(severity) {
        return [qsTr("Error"), qsTr("Warning"), qsTr("Remark")][severity] || "";
    }

    function accessiblePressAction() {
        doubleClicked();
    }

    Accessible.role: Accessible.ListItem
    Accessible.name: [severityText(model.severity), step.text, sentence.text].filter(Boolean).join(", ")
    Accessible.selectable: true
    Accessible.selected: current

    height: Math.max(24, sentence.y * 2 + sentence.height)
    color: {
        if (current)
            return Theme.selectedBack;
        return row % 2 === 0 ? Theme.normalBack1 : Theme.normalBack2;
    }

    SeveritySign {
        x: 4
        y: 6
        severity: model.severity
    }

    Text {
        id: step
        x: 26
        y: 4
        width: Math.min(180, root.width / 3)
        elide: Text.ElideRight
        maximumLineCount: 1
        color: root.current ? Theme.selectedText : Theme.normalText
        text: model.itemId < 0 ? "" : "#" + model.itemId + " " + model.itemName
    }

    Text {
        id: sentence
        x: step.x + step.width + 8
        y: 4
        width: root.width - x - 4
        wrapMode: Text.Wrap
        color: step.color
        text: model.text
    }

    MouseArea {
        anchors.fill: parent
        onPressed: {
            root.view.currentIndex = root.row;
            root.view.forceActiveFocus();
        }
        onDoubleClicked: root.doubleClicked()
    }
}
