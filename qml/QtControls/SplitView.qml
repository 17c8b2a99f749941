import QtQuick 2.9
import QtQuick.Controls 1.4 as Toolkit
import QtQuick.Layouts 1.3
import "../Singletons"
import "toolkit.js" as Internals

Toolkit.SplitView {
    id: root

    handleDelegate: Rectangle {
        id: handle

        readonly property int index: styleData.index

        function move(distance) {
            Internals.moveHandle(root, index, distance);
        }

        Accessible.role: Accessible.Splitter
        Accessible.name: qsTr("Divider")
        Accessible.focusable: true

        width: root.orientation === Qt.Horizontal ? 4 : root.width
        height: root.orientation === Qt.Horizontal ? root.height : 4
        activeFocusOnTab: true
        color: activeFocus ? Theme.focusFrame : Theme.splitHandle

        Keys.onPressed: {
            var horizontal = root.orientation === Qt.Horizontal;
            if (event.key === (horizontal ? Qt.Key_Left : Qt.Key_Up))
                move(-16);
            else if (event.key === (horizontal ? Qt.Key_Right : Qt.Key_Down))
                move(16);
            else
                return;
            event.accepted = true;
        }
    }
}
