import QtQuick 2.9
import "../QtControls"

/// The label of a field.
Label {
    anchors.verticalCenter: parent ? parent.verticalCenter : undefined
    width: contentWidth + 4
    height: contentHeight + 4
}
