import QtQuick 2.9
import "../../Singletons"

/// Frame and title of a group box.
Rectangle {
    id: panel

    property Item control: null

    anchors.fill: parent
    radius: 5
    border.color: Theme.groupBoxFrame
    gradient: Gradient {
        GradientStop {
            position: 0
            color: Theme.groupBox1
        }
        GradientStop {
            position: 1
            color: Theme.groupBox2
        }
    }

    Text {
        x: 8
        y: 4
        text: panel.control ? panel.control.title : ""
        color: panel.control && panel.control.enabled ? Theme.normalText : Theme.disabledText
        font.family: Theme.heavyFont
        font.bold: true
        font.pixelSize: Theme.fontSize
    }
}
