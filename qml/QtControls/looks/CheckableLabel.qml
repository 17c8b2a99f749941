import QtQuick 2.9
import "../../Singletons"

/// The label of a check box or radio button.
Text {
    property Item control: null

    text: control ? control.text : ""
    verticalAlignment: Text.AlignVCenter
    color: control && control.enabled ? Theme.normalText : Theme.disabledText
    font.family: Theme.mediumFont
    font.weight: Theme.mediumWeight
    font.pixelSize: Theme.labelFontSize
}
