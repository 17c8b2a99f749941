import QtQuick 2.9

/// A spin box with its arrows side by side.
SpinBoxLook {
    id: look

    incrementControl: SpinBoxArrow {
        control: look.control
        pressed: styleData.upPressed
        source: "../../../icon/spinbox_right_arrow.png"
    }
    decrementControl: SpinBoxArrow {
        control: look.control
        pressed: styleData.downPressed
        source: "../../../icon/spinbox_left_arrow.png"
    }
}
