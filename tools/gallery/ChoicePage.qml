import QtQuick 2.9
import "qrc:/qml/Controls"
import "qrc:/qml/QtControls"

Column {
    spacing: 8

    Row {
        spacing: 12

        CheckBox {
            text: "CheckBox"
        }

        CheckBox {
            text: "checked"
            checked: true
        }

        RadioButton {
            text: "RadioButton"
        }

        RadioButton {
            text: "checked"
            checked: true
        }
    }

    Row {
        spacing: 8

        ComboBox {
            width: 120
            model: ["ComboBox", "second"]
        }

        NameIdComboBox {
            width: 140
            nameList: ["NameIdComboBox", "second"]
            idList: [4, 7]
            itemId: 4
        }

        PopupMenuButton {
            width: 150
            itemTreeJson: JSON.stringify({ "children": [
                { "id": 1, "name": "PopupMenuButton" },
                { "id": 2, "name": "Folder", "folder": true, "children": [{ "id": 3, "name": "A \"quoted\" name" }] },
                { "separator": true },
                { "id": 4, "name": "Disabled", "enabled": false }
            ] })
            itemId: 1
        }
    }

    Row {
        spacing: 8

        SpinBox {
            width: 110
            height: 28
            minimumValue: -9999
            maximumValue: 4096
            value: -1234
        }

        SpinBox {
            horizontal: false
            value: 42
        }

        Slider {
            width: 200
            value: 0.4
        }
    }
}
