import QtQuick 2.9
import Morvi.kess 1.0
import "../QtControls"
import "../Singletons"

/// A row of the event dialog: rich text in a stripe.
Rectangle {
    id: root

    /// The list view of the row.
    property ListView view: null
    property int row: -1
    property string text
    /// Without its markup, for a screen reader.
    property string plainText: ""
    property alias content: content

    signal doubleClicked()

    function accessiblePressAction() {
        doubleClicked();
    }

    Accessible.role: Accessible.ListItem
    Accessible.name: plainText
    Accessible.selectable: true
    Accessible.selected: view.currentIndex === row

    color: {
        if (view.currentIndex === row)
            return Theme.currentEvent;
        return row % 2 === 0 ? Theme.eventRow1 : Theme.eventRow2;
    }

    Text {
        id: content
        width: contentWidth + 4
        height: contentHeight + 4
        textFormat: Text.RichText
        text: Gui.withoutLoading(root.text)
    }

    MouseArea {
        anchors.fill: parent
        onClicked: {
            root.view.currentIndex = root.row;
            root.view.forceActiveFocus();
        }
        onDoubleClicked: root.doubleClicked()
    }
}
