import QtQuick 2.9 as Toolkit
import "../Singletons"

Toolkit.TextEdit {
    id: root

    /// The text, as it counts during a composition.
    readonly property alias enteredText: entered.text

    /// Ends what a composition has begun.
    function enter() {
        entered.take();
    }

    Toolkit.Accessible.role: Toolkit.Accessible.EditableText
    selectByMouse: true
    selectionColor: Theme.selectedEdBack
    selectedTextColor: Theme.selectedEdText
    wrapMode: Toolkit.TextEdit.Wrap
    opacity: enabled ? 1 : 0.5
    font.family: Theme.fixedFont
    font.pixelSize: Theme.fontSize

    // The toolkit's own handling of this key freezes the program.
    Toolkit.Keys.onPressed: {
        if (event.key === Qt.Key_X && (event.modifiers & Qt.ControlModifier)) {
            root.cut();
            event.accepted = true;
        }
    }

    EnteredText {
        id: entered
        field: root
    }
}
