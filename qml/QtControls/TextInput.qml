import QtQuick 2.9 as Toolkit
import "../Singletons"

Toolkit.TextInput {
    id: root

    /// The text, as it counts during a composition.
    readonly property alias enteredText: entered.text

    Toolkit.Accessible.role: Toolkit.Accessible.EditableText
    selectByMouse: true
    selectionColor: Theme.selectedEdBack
    selectedTextColor: Theme.selectedEdText
    opacity: enabled ? 1 : 0.5
    font.family: Theme.fixedFont
    font.pixelSize: Theme.fontSize

    EnteredText {
        id: entered
        field: root
    }
}
