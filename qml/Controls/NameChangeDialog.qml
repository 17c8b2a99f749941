import QtQuick 2.9
import QtQuick.Dialogs 1.2

/// Asks whether a name that is taken may become another one.
MessageDialog {
    id: root

    property var callback: null

    /// Opens the dialog; `callback` is called without arguments on Yes.
    function dialogNameChange(oldName, newName, callback) {
        root.callback = callback;
        title = qsTr("Tutorial item name change");
        // Each name is put in once, whatever stands in it.
        text = qsTr("There is the same tutorial item name.\nChange %2 to %1 ?").replace(/%[12]/g, function(place) {
            return place === "%1" ? newName : oldName;
        });
        open();
    }

    objectName: "NameChangeDialog"
    standardButtons: StandardButton.Yes | StandardButton.No

    onYes: {
        var confirmed = callback;
        callback = null;
        if (confirmed)
            confirmed();
    }
}
