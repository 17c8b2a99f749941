import QtQuick 2.9
import "Singletons"

/// A hidden panel that screens under work write lines to.
Rectangle {
    property alias debugText: debugText

    visible: false
    color: Theme.debugBack
    border.width: 1
    border.color: Theme.textFrame

    Text {
        id: debugText

        function clear() {
            text = "";
        }

        function append(message) {
            text += "\n" + message;
        }

        anchors.fill: parent
        anchors.margins: 2
    }
}
