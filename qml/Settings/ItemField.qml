import QtQuick 2.9

/// A field of the selected item: one row of the table in ItemFields, where it
/// is an ItemNumber, an ItemText or an ItemFlag by its value.
QtObject {
    /// The name of the value in the item, which is also the objectName of its
    /// control in the form.
    property string key: ""
    /// The name of the undo step that an edit makes.
    property string undoName: ""
    /// A text that the saved tutorial could not be opened with is not taken.
    property bool refusable: false
    /// An edit becomes a part of the sequence that is open, if there is one.
    property bool joinsSequence: false
    /// After an edit the indicator goes to its new place.
    property bool movesIndicator: false
    /// After an edit the host editor shows the step at once.
    property bool restarts: false
    /// Has show(value) and the signal edited(value); where an edit has an end,
    /// also commit() and `pending`, which is what was typed since.
    property Item control: null

    signal changed()
}
