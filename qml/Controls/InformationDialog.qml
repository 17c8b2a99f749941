import QtQuick 2.9
import QtQuick.Dialogs 1.2

/// Shows a message. `callback` is called without arguments when it closes.
MessageDialog {
    id: root

    property var callback: null

    /// The dialog isn't shown any more.
    signal hidden()

    objectName: "InformationDialog"
    title: ""
    icon: StandardIcon.Information

    onVisibleChanged: {
        if (visible)
            return;
        if (callback)
            callback();
        hidden();
    }
}
