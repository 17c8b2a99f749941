import QtQuick 2.9
import "../../QtControls" as Kit
import "../../Singletons"

/// The field that takes the place of a row's name while it is renamed.
Rectangle {
    id: field

    /// The TreeListItem, which knows this type.
    property MouseArea delegate: null
    property real maximumWidth: 0
    property string oldText: ""

    function open(text) {
        oldText = text;
        input.text = text;
        visible = true;
        delegate.view.renamedItem = delegate;
        input.selectAll();
        input.forceActiveFocus();
    }

    function finish() {
        if (!visible)
            return;
        var row = delegate;
        var text = input.text;
        close();
        if (text === oldText)
            return;
        row.tree.onTextChanged(row.index, text);
    }

    // The keys go on in the row, unless another item has taken the focus.
    function close() {
        var hadFocus = input.activeFocus;
        visible = false;
        if (hadFocus)
            delegate.forceActiveFocus();
    }

    visible: false
    color: Theme.renameBack
    width: Math.min(input.contentWidth + 4, maximumWidth)
    height: 20
    clip: true

    Kit.TextInput {
        id: input
        Accessible.name: qsTr("Name")
        x: 2
        y: 2
        width: field.width - 4
        height: 16
        color: Theme.renameText
        verticalAlignment: TextInput.AlignVCenter
        onEditingFinished: field.finish()
        Keys.onEscapePressed: {
            text = field.oldText;
            field.close();
        }
    }
}
