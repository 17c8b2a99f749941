import QtQuick 2.9
import QtQuick.Layouts 1.3
import "qrc:/qml/Controls"
import "qrc:/qml/QtControls"
import "qrc:/qml/Singletons"

SplitView {
    width: 450
    height: 122

    ScrollView {
        width: 210

        ListView {
            id: list
            model: 12
            delegate: Rectangle {
                width: list.width
                height: 20
                color: index === 2 ? Theme.selectedBack : index % 2 ? Theme.normalBack2 : Theme.normalBack1

                Text {
                    x: 4
                    text: "ListView in ScrollView, row " + index
                    color: index === 2 ? Theme.selectedText : Theme.normalText
                }
            }
        }
    }

    GradationRectangle {
        Layout.fillWidth: true

        Label {
            anchors.centerIn: parent
            text: "GradationRectangle in SplitView"
        }

        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            y: 12
            spacing: 8

            Repeater {
                model: 3

                SeveritySign {
                    severity: index
                }
            }
        }
    }
}
