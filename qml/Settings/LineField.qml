import QtQuick 2.9
import "../Controls"

/// A line of text of the selected item. What was typed is handed over when the
/// edit ends, or earlier by commit().
RectangleTextInput {
    id: root

    /// What stood here before anything was typed.
    property string shownText: ""

    /// What was typed and not handed over; undefined if nothing was.
    readonly property var pending: enteredText === shownText ? undefined : enteredText

    signal edited(string newText)

    function show(newText) {
        text = newText;
        shownText = text;
    }

    function commit() {
        if (text === shownText)
            return;
        shownText = text;
        edited(text);
    }

    height: 32

    keyFilter: historyKeys
    onEditingFinished: commit()

    HistoryKeys {
        id: historyKeys
    }
}
