import QtQuick 2.9
import "../QtControls"
import "../Singletons"

/// A label in a thin black frame.
Rectangle {
    property alias text: label.text
    property alias wrapMode: label.wrapMode
    property alias contentWidth: label.contentWidth
    property alias contentHeight: label.contentHeight
    property alias textColor: label.color
    property alias elide: label.elide
    property alias verticalAlignmnet: label.verticalAlignment

    color: Theme.normalBack1
    border.width: 1
    border.color: Theme.textFrame

    Label {
        id: label
        x: 2
        y: 2
        width: parent.width - 4
        height: parent.height - 4
        wrapMode: Text.Wrap
        elide: Text.ElideRight
    }
}
