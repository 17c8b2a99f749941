import QtQuick 2.9
import QtQuick.Controls 1.4 as Toolkit
import "../Singletons"

Toolkit.Label {
    height: font.pixelSize + 4
    verticalAlignment: Text.AlignVCenter
    color: Theme.normalText
    opacity: enabled ? 1 : 0.5
    font.family: Theme.mediumFont
    font.weight: Theme.mediumWeight
    font.pixelSize: Theme.labelFontSize
}
