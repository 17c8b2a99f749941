import QtQuick 2.9

/// One of the two arrows of a spin box that has them side by side.
Image {
    property Item control: null
    property bool pressed: false

    width: control ? control.height : 0
    height: width
    opacity: control && control.enabled ? (pressed ? 1 : 0.6) : 0.5
}
