import QtQuick 2.9
import QtQuick.Dialogs 1.2

/// Shows a warning. `callback` is called with whether it was accepted.
MessageDialog {
    id: root

    property var callback: null
    // The toolkit's own dialog reports one answer more than once.
    property bool answered: false

    /// The dialog isn't shown any more.
    signal hidden()

    function answer(accepted) {
        if (answered)
            return;
        answered = true;
        if (callback)
            callback(accepted);
    }

    objectName: "AlertDialog"
    title: qsTr("Warning")
    icon: StandardIcon.Warning

    onAccepted: answer(true)
    onRejected: answer(false)
    onVisibleChanged: {
        if (visible)
            answered = false;
        else
            hidden();
    }
}
