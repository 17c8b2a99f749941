import QtQuick 2.9

/// A hidden panel that screens under work write lines to.
Rectangle {
    property alias debugText: debugText

    visible: false
    color: "white"
    border.width: 1
    border.color: "black"

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
