import QtQuick 2.9
import "../QtControls"

/// A row of the event dialog: rich text in a stripe.
Rectangle {
    id: root

    /// The list view of the row.
    property Item view: null
    property int row: -1
    property alias content: content

    signal doubleClicked()

    color: view.currentIndex === row ? "lime" : row % 2 === 0 ? "white" : "lightgray"

    Text {
        id: content
        width: contentWidth + 4
        height: contentHeight + 4
        textFormat: Text.RichText
    }

    MouseArea {
        anchors.fill: parent
        onClicked: root.view.currentIndex = root.row
        onDoubleClicked: root.doubleClicked()
    }
}
