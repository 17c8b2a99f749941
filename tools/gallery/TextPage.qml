import QtQuick 2.9
import "qrc:/qml/Controls"
import "qrc:/qml/QtControls"
import "qrc:/qml/Singletons"

Column {
    spacing: 6

    Row {
        spacing: 12

        Text {
            text: "Text あいう"
        }

        Label {
            text: "Label あいう"
        }

        Text {
            font.family: Theme.heavyFont
            text: "heavyFont"
        }

        Text {
            font.family: Theme.fixedFont
            text: "fixedFont 0O1l"
        }
    }

    Row {
        spacing: 8

        Rectangle {
            width: 150
            height: 24

            TextInput {
                anchors.fill: parent
                anchors.margins: 3
                text: "TextInput, selected"
                Component.onCompleted: select(0, 9)
            }
        }

        RectangleLabel {
            width: 130
            height: 24
            text: "RectangleLabel"
        }

        RectangleTextInput {
            width: 150
            height: 24
            text: "RectangleTextInput"
        }
    }

    Row {
        spacing: 8

        RectangleTextEdit {
            width: 220
            height: 66
            text: "RectangleTextEdit wraps what is longer than its line, あいうえおかきくけこ"
        }

        Rectangle {
            width: 218
            height: 66

            TextEdit {
                anchors.fill: parent
                anchors.margins: 3
                text: "TextEdit, first line\nsecond line"
                Component.onCompleted: select(10, 15)
            }
        }
    }
}
