import QtQuick 2.9
import QtQuick.Window 2.2
import "qrc:/qml/Controls"
import "qrc:/qml/QtControls"
import "qrc:/qml/Singletons"

/// All controls of the kit, enabled on the left and disabled on the right.
Window {
    id: root

    property alias theme: themeBox.currentText

    width: 980
    height: 760
    visible: true
    title: "Trelvane controls"

    GradationRectangle {
        anchors.fill: parent
    }

    Row {
        id: header
        x: 12
        y: 8
        spacing: 8

        Label {
            anchors.verticalCenter: parent.verticalCenter
            text: "Theme"
        }

        ComboBox {
            id: themeBox
            objectName: "theme"
            width: 180
            model: ["default", "dark", "highContrastWhite", "highContrastBlack"]
            onCurrentTextChanged: Theme.setTheme(currentText)
        }
    }

    Row {
        anchors {
            top: header.bottom
            bottom: parent.bottom
            left: parent.left
            right: parent.right
            margins: 12
        }
        spacing: 12

        Repeater {
            model: [true, false]

            Column {
                spacing: 8
                enabled: modelData

                GroupBox {
                    width: 470
                    height: 178
                    title: enabled ? "Texts" : "Texts, disabled"

                    TextPage {}
                }

                GroupBox {
                    width: 470
                    height: 158
                    title: "Choices"

                    ChoicePage {}
                }

                GroupBox {
                    width: 470
                    height: 150
                    title: "Buttons"

                    ButtonPage {}
                }

                GroupBox {
                    width: 470
                    height: 160
                    title: "Frames and lists"

                    FramePage {}
                }
            }
        }
    }
}
