import QtQuick 2.9
import "../QtControls"

/// A yes or no of the selected item.
CheckBox {
    signal edited(bool newValue)

    function show(newValue) {
        checked = newValue;
    }

    onCheckedChanged: edited(checked)
}
