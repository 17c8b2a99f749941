import QtQuick 2.9
import QtQuick.Controls 1.4 as Toolkit
import "toolkit.js" as Internals

Toolkit.Slider {
    id: root

    activeFocusOnPress: true

    Component.onCompleted: Internals.wheelOnlyWithFocus(root, "Slider", Internals.isSliderWheelArea)
}
