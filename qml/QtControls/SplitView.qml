import QtQuick 2.9
import QtQuick.Controls 1.4 as Toolkit
import QtQuick.Layouts 1.3
import "../Singletons"

Toolkit.SplitView {
    id: root

    // Gives one part so much more room, and the other one less, as far as they allow.
    function moveHandle(index, distance) {
        // A release of the toolkit without these members leaves it to the mouse.
        if (!root.__items)
            return;
        var first = root.__items[index];
        var second = root.__items[index + 1];
        var horizontal = root.orientation === Qt.Horizontal;
        var size = horizontal ? "width" : "height";
        var minimum = horizontal ? "minimumWidth" : "minimumHeight";
        var takesRest = horizontal ? first.Layout.fillWidth : first.Layout.fillHeight;
        var sized = takesRest ? second : first;
        var other = takesRest ? first : second;
        var most = sized[size] + other[size] - other.Layout[minimum];
        var wanted = sized[size] + (takesRest ? -distance : distance);
        sized[size] = Math.max(sized.Layout[minimum], Math.min(wanted, most));
    }

    handleDelegate: Rectangle {
        id: handle

        readonly property int index: styleData.index

        function move(distance) {
            root.moveHandle(index, distance);
        }

        objectName: "splitHandle"
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
