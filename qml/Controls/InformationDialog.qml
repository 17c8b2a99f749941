import QtQuick 2.9
import QtQuick.Dialogs 1.2

/// Shows a message. `callback` is called without arguments when it closes.
MessageDialog {
    id: root

    property var callback: null

    objectName: "InformationDialog"
    title: ""
    icon: StandardIcon.Information

    onVisibleChanged: {
        if (!visible && callback)
            callback();
    }
}
