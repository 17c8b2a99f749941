import QtQuick 2.9
import "../QtControls"

/// A coordinate of the selected item. What was typed is handed over when the
/// edit ends, or earlier by commit(). A number out of the limits is shown as
/// the nearest one inside, and stays in the item until it is edited.
SpinBox {
    id: root

    /// What stood here before anything was typed.
    property int shownValue: 0
    property bool showing: false
    /// What was typed and not handed over; undefined if nothing was.
    readonly property var pending: value === shownValue ? undefined : value

    signal edited(int newValue)

    function show(newValue) {
        showing = true;
        value = newValue;
        shownValue = value;
        showing = false;
    }

    function commit() {
        if (showing || value === shownValue)
            return;
        shownValue = value;
        edited(value);
    }

    width: 128
    height: 24
    minimumValue: -9999
    maximumValue: 4096

    Keys.forwardTo: historyKeys
    onEditingFinished: commit()

    HistoryKeys {
        id: historyKeys
    }
}
