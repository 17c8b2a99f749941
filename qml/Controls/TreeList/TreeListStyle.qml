import QtQuick 2.9
import QtQuick.Controls.Styles 1.4
import "../../Singletons"

/// The looks of the view. The places of a drag are counted in these indents.
TreeViewStyle {
    id: style

    indentation: 20
    backgroundColor: "transparent"

    branchDelegate: Item {
        width: style.indentation
        height: 16

        Image {
            anchors.centerIn: parent
            source: "../../../icon/arrow-down.png"
            rotation: styleData.isExpanded ? 0 : -90
        }
    }

    headerDelegate: Rectangle {
        height: 24
        gradient: Gradient {
            GradientStop { position: 0; color: Theme.window1 }
            GradientStop { position: 1; color: Theme.window2 }
        }

        Text {
            anchors.fill: parent
            anchors.leftMargin: 8
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideRight
            text: styleData.value
            color: Theme.normalText
            font.family: Theme.mediumFont
            font.pixelSize: Theme.labelFontSize
        }

        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: 1
            color: Theme.controlFrame
        }
    }
}
