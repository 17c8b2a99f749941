import QtQuick 2.9
import "../QtControls"
import "../Singletons"

/// The lines of a hint, in a thin black frame. Every change of the text is told
/// at once; commit() tells what a composition that was given up has left.
Rectangle {
    id: root

    property alias text: edit.text
    /// What stands in it, and what is to be said of that, for who can't see the label.
    property string accessibleName: ""
    property string accessibleDescription: ""

    signal edited(string newText)

    function show(newText) {
        if (edit.text === newText)
            return;
        var position = positionIn(newText);
        edit.text = newText;
        if (edit.activeFocus)
            edit.cursorPosition = Math.min(position, edit.length);
    }

    function commit() {
        edit.enter();
    }

    // Who types goes on where he was, or at the end of what is new: what stands after the cursor stays so, as far as
    // it is the same.
    function positionIn(newText) {
        var oldText = edit.text;
        var most = Math.min(oldText.length - edit.cursorPosition, newText.length);
        var same = 0;
        while (same < most && oldText[oldText.length - 1 - same] === newText[newText.length - 1 - same])
            ++same;
        return newText.length - same;
    }

    // The place to scroll to, of the two edges in sight and that of the cursor.
    function following(position, extent, cursor, cursorExtent) {
        if (cursor < position)
            return Math.max(0, cursor - 4);
        return Math.max(position, cursor + cursorExtent + 4 - extent);
    }

    function followCursor() {
        var area = view.flickableItem;
        var cursor = edit.cursorRectangle;
        area.contentX = following(area.contentX, view.viewport.width, cursor.x, cursor.width);
        area.contentY = following(area.contentY, view.viewport.height, cursor.y, cursor.height);
    }

    border.width: 1
    border.color: Theme.textFrame

    HistoryKeys {
        id: historyKeys
    }

    ScrollView {
        id: view
        anchors.fill: parent
        anchors.margins: 1

        TextEdit {
            id: edit
            Accessible.name: root.accessibleName
            Accessible.description: root.accessibleDescription
            objectName: root.objectName + ".edit"
            width: Math.max(contentWidth + 8, root.width - 24)
            height: Math.max(contentHeight + 4, root.height - 24)
            leftPadding: 3
            topPadding: 2
            selectByMouse: true
            wrapMode: TextEdit.NoWrap
            textFormat: TextEdit.PlainText
            activeFocusOnTab: true

            onEnteredTextChanged: root.edited(enteredText)
            onCursorRectangleChanged: if (activeFocus) root.followCursor()

            Keys.forwardTo: historyKeys
            Keys.onTabPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
            Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
        }
    }
}
