import QtQuick 2.9
import QtQuick.Controls 1.4 as Toolkit
import "../Singletons"

Toolkit.SplitView {
    id: root

    handleDelegate: Rectangle {
        width: root.orientation === Qt.Horizontal ? 4 : root.width
        height: root.orientation === Qt.Horizontal ? root.height : 4
        color: Theme.splitHandle
    }
}
