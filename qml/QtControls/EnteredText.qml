import QtQuick 2.9

/// What counts of a text field while an input method is at work in it. What a composition takes the place of counts
/// until something comes instead, or the composition ends.
QtObject {
    id: root

    /// A TextEdit or a TextInput.
    property Item field: null
    property string text: ""
    property int lastLength: 0
    readonly property string shownText: field.text
    readonly property string composedText: field.preeditText

    /// All counts that the field holds.
    function take() {
        lastLength = field.length;
        text = field.text;
    }

    onShownTextChanged: {
        if (field.preeditText !== "" && field.length < lastLength)
            lastLength = field.length;
        else
            take();
    }
    // It comes before the text that is handed over.
    onComposedTextChanged: if (composedText === "") Qt.callLater(take)
}
