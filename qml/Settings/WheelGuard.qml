import QtQuick 2.9

/// Lies over a control and keeps the wheel from it while it hasn't the focus.
MouseArea {
    property Item control: parent

    anchors.fill: parent
    acceptedButtons: Qt.NoButton

    onWheel: wheel.accepted = !control.activeFocus
}
