import QtQuick 2.9 as Toolkit
import "../Singletons"

Toolkit.TextInput {
    Toolkit.Accessible.role: Toolkit.Accessible.EditableText
    selectByMouse: true
    selectionColor: Theme.selectedEdBack
    selectedTextColor: Theme.selectedEdText
    opacity: enabled ? 1 : 0.5
    font.family: Theme.fixedFont
    font.pixelSize: Theme.fontSize
}
