import QtQuick 2.9
import "qrc:/qml/Controls"
import "qrc:/qml/QtControls"

Column {
    spacing: 8

    Row {
        spacing: 8

        Button {
            text: "Button"
        }

        Button {
            width: 110
            text: "A text that is too long"
        }

        Button {
            text: "Checked"
            checkable: true
            checked: true
        }

        Button {
            text: "With icon"
            iconSource: "qrc:/icon/new_data.png"
        }

        Button {
            width: 40
            iconSource: "qrc:/icon/undo.png"
        }
    }

    Row {
        spacing: 8

        IconButton {
            iconSource: "qrc:/icon/add_folder.png"
        }

        IconButton {
            iconSource: "qrc:/icon/new_data.png"
        }

        IconButton {
            imageSource: "qrc:/icon/delete.png"
        }

        IconButton {
            imageSource: "qrc:/icon/undo.png"
            checked: true
        }

        IconButton {
            imageSource: "qrc:/icon/redo.png"
            focus: true
        }
    }
}
