import QtQuick 2.9
import QtQuick.Controls 1.4 as Toolkit
import QtQuick.Controls.Styles 1.4
import "../Singletons"
import "looks"

Toolkit.Button {
    id: root

    /// Width of the text, once it is fixed.
    property real textWidth: 0

    Accessible.name: text || tooltip
    Accessible.description: text && tooltip !== text ? tooltip : ""
    Accessible.pressed: pressed

    height: Theme.controlHeight
    style: Theme.toolkitSurfaces ? toolkitLook : themedLook

    Component {
        id: toolkitLook

        ButtonStyle {
            label: ButtonLabel {
                control: root
            }
        }
    }

    Component {
        id: themedLook

        ButtonStyle {
            label: ButtonLabel {
                control: root
            }
            background: ButtonSurface {
                control: root
            }
        }
    }
}
