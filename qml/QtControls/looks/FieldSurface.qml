import QtQuick 2.9
import "../../Singletons"

/// The surface of a field in the themes that the toolkit's own doesn't fit.
Rectangle {
    property Item control: null

    implicitWidth: 80
    implicitHeight: Theme.controlHeight
    radius: 3
    color: Theme.normalBack1
    border.color: control && control.activeFocus ? Theme.focusFrame : Theme.controlFrame
}
