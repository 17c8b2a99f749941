import QtQuick 2.9

/// A spin box with its arrows above each other, on the theme's own surface.
SpinBoxLook {
    id: look

    background: FieldSurface {
        control: look.control
    }
    incrementControl: Item {
        implicitWidth: 20

        ArrowMark {
            anchors.centerIn: parent
            up: true
            opacity: styleData.upPressed ? 1 : 0.6
        }
    }
    decrementControl: Item {
        implicitWidth: 20

        ArrowMark {
            anchors.centerIn: parent
            opacity: styleData.downPressed ? 1 : 0.6
        }
    }
}
