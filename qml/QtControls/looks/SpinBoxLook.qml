import QtQuick 2.9
import QtQuick.Controls.Styles 1.4
import "../../Singletons"

/// Texts of a spin box; surface and arrows are the toolkit's.
SpinBoxStyle {
    textColor: control.enabled ? Theme.normalText : Theme.disabledText
    selectionColor: Theme.selectedEdBack
    selectedTextColor: Theme.selectedEdText
    font.family: Theme.normalFont
    font.pixelSize: Theme.fontSize
}
