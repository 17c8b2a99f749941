import QtQuick 2.9
import "../../Singletons"

/// The surface of a button in the themes that the toolkit's own doesn't fit.
Rectangle {
    id: surface

    property Item control: null
    readonly property bool down: control !== null && control.pressed
    readonly property bool hot: control !== null && control.enabled
                                && (control.hovered || control.pressed || control.checked === true)

    implicitWidth: 80
    implicitHeight: Theme.controlHeight
    radius: 3
    border.color: control && control.activeFocus ? Theme.focusFrame : Theme.buttonFrame
    gradient: Gradient {
        GradientStop {
            position: 0
            color: !surface.hot ? Theme.button1 : surface.down ? Theme.hotButton2 : Theme.hotButton1
        }
        GradientStop {
            position: 1
            color: !surface.hot ? Theme.button2 : surface.down ? Theme.hotButton1 : Theme.hotButton2
        }
    }
}
