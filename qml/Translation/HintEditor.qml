import QtQuick 2.9
import Morvi.kess 1.0
import "../QtControls"
import "../Settings"
import "../Singletons"

/// Edits one hint. It lies over the cell that has the keys. What was typed is
/// handed over by commit(), or when the editor loses the focus.
///
/// While the whole text is selected, as it is at first, the arrow keys lead to
/// the neighbours; whatever is typed takes the place of the text.
Rectangle {
    id: root

    property int itemId: -1
    property bool second: true
    readonly property string field: second ? "hint2" : "hint"
    /// What stood here before anything was typed.
    property string shownText: ""
    property bool showing: false
    readonly property bool entered: edit.text !== shownText || edit.selectionEnd - edit.selectionStart < edit.length
    readonly property real contentHeight: edit.contentHeight + 8
    readonly property alias text: edit.text
    /// What stands in it, for who can't see the header.
    property string accessibleName: ""
    readonly property alias cursorRectangle: edit.cursorRectangle

    signal edited(string newText)
    /// To a cell that many cells on, or rows.
    signal cellRequested(int step)
    signal rowRequested(int step)
    signal pageRequested(int step)
    /// To the first row, or the last one.
    signal edgeRequested(bool last)

    function begin(id, isSecond, text) {
        itemId = id;
        second = isSecond;
        show(text);
    }

    function show(text) {
        showing = true;
        shownText = text;
        edit.text = text;
        showing = false;
        noteTyped();
        edit.selectAll();
    }

    /// The document says this now. It counts where it has changed; where it has
    /// not, what was typed stays.
    function follow(text) {
        if (text !== shownText)
            show(text);
    }

    function commit() {
        if (edit.preeditText !== "")
            Gui.finishComposition();
        edit.enter();
        if (edit.text === shownText)
            return;
        shownText = edit.text;
        noteTyped();
        edited(edit.text);
    }

    // What was typed and not handed over is kept should the process end.
    function noteTyped() {
        TutorialManager.recovery.setTyped(itemId, field, edit.enteredText === shownText ? undefined : edit.enteredText);
    }

    function enterAtEnd() {
        edit.deselect();
        edit.cursorPosition = edit.length;
    }

    function enterAt(x, y) {
        edit.cursorPosition = edit.positionAt(x - edit.x, y - edit.y);
    }

    function takeKeys() {
        edit.forceActiveFocus();
    }

    function isHandled(event) {
        var control = (event.modifiers & Qt.ControlModifier) !== 0;
        switch (event.key) {
        case Qt.Key_Tab:
            cellRequested(1);
            return true;
        case Qt.Key_Backtab:
            cellRequested(-1);
            return true;
        case Qt.Key_Escape:
            show(shownText);
            return true;
        case Qt.Key_F2:
            enterAtEnd();
            return true;
        case Qt.Key_PageDown:
            pageRequested(1);
            return true;
        case Qt.Key_PageUp:
            pageRequested(-1);
            return true;
        case Qt.Key_Return:
        case Qt.Key_Enter:
            if (control)
                rowRequested(1);
            else if (!entered)
                enterAtEnd();
            else
                return false;
            return true;
        }
        return (control || !entered && event.modifiers === Qt.NoModifier) && isStep(event.key, control);
    }

    function isStep(key, control) {
        if (key === Qt.Key_Down)
            rowRequested(1);
        else if (key === Qt.Key_Up)
            rowRequested(-1);
        else if (key === Qt.Key_Left && !control && second)
            cellRequested(-1);
        else if (key === Qt.Key_Right && !control && !second)
            cellRequested(1);
        else if (control && !entered && (key === Qt.Key_Home || key === Qt.Key_End))
            edgeRequested(key === Qt.Key_End);
        else
            return false;
        return true;
    }

    objectName: "hintEditor"
    // Where there is no cell, the keys are the window's.
    enabled: visible
    color: Theme.normalBack1
    border.width: 2
    border.color: Theme.focusFrame

    HistoryKeys {
        id: historyKeys
    }

    TextEdit {
        id: edit
        objectName: "hintEditor.edit"
        Accessible.name: root.accessibleName
        x: 4
        y: 4
        width: parent.width - 8
        height: parent.height - 8
        focus: true
        textFormat: TextEdit.PlainText
        color: Theme.normalText
        onEnteredTextChanged: if (!root.showing) root.noteTyped()
        onActiveFocusChanged: if (!activeFocus) root.commit()
        onEditingFinished: root.commit()

        Keys.forwardTo: historyKeys
        Keys.onPressed: {
            if (root.isHandled(event))
                event.accepted = true;
        }
    }
}
