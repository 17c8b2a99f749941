import QtQuick 2.9
import QtQuick.Dialogs 1.2

/// Shows a warning. `callback` is called with whether it was accepted.
MessageDialog {
    id: root

    property var callback: null

    objectName: "AlertDialog"
    title: qsTr("Warning")
    icon: StandardIcon.Warning

    onAccepted: {
        if (callback)
            callback(true);
    }
    onRejected: {
        if (callback)
            callback(false);
    }
}
