import QtQuick 2.9
import "../QtControls"
import "../Singletons"

/// A step with its hints in both languages.
Rectangle {
    id: root

    /// The widths of the columns.
    property QtObject columns: null
    property int row: -1
    /// How high the editor has to be that lies over one of the hints; 0 where
    /// none does.
    property real editorHeight: 0
    readonly property string key: "#" + model.itemId

    signal pressed(bool second, real x, real y)

    function accessiblePressAction() {
        pressed(true, 0, 0);
    }

    function isMissing(text) {
        return text === "" || text === key;
    }

    Accessible.role: Accessible.ListItem
    Accessible.name: [key + " " + model.itemName, model.firstHint, model.secondHint, mark.text].filter(Boolean).join(", ")
    Accessible.selectable: true
    Accessible.selected: ListView.isCurrentItem

    height: Math.max(28, first.contentHeight, second.contentHeight, editorHeight)
    color: row % 2 === 0 ? Theme.normalBack1 : Theme.normalBack2

    Text {
        x: 4
        y: 4
        width: root.columns.name - 8
        elide: Text.ElideRight
        maximumLineCount: 1
        text: root.key + " " + model.itemName
    }

    HintCell {
        id: first
        x: root.columns.name
        width: root.columns.hint
        height: root.height
        text: model.firstHint
        missing: root.isMissing(text)
        onPressed: root.pressed(false, x, y)
    }

    HintCell {
        id: second
        x: first.x + first.width
        width: root.columns.hint
        height: root.height
        text: model.secondHint
        missing: root.isMissing(text)
        onPressed: root.pressed(true, x, y)
    }

    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: Theme.controlFrame
        opacity: 0.4
    }

    StateMark {
        id: mark
        x: second.x + second.width + 4
        y: 5
        hintState: model.hintState
    }
}
