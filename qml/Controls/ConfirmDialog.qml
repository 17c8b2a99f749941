import QtQuick 2.9
import QtQuick.Dialogs 1.2

/// Asks a question. `callback` is called once: 1 for Yes, 0 for No, -1 for neither.
MessageDialog {
    id: root

    property var callback: null

    /// The dialog isn't shown any more.
    signal hidden()

    function answer(result) {
        var answered = callback;
        callback = null;
        if (answered)
            answered(result);
    }

    objectName: "ConfirmDialog"
    title: qsTr("Confirmation")
    text: qsTr("Are you sure?")
    icon: StandardIcon.Warning
    standardButtons: StandardButton.Yes | StandardButton.No

    onYes: answer(1)
    onNo: answer(0)
    onRejected: answer(-1)
    onVisibleChanged: {
        if (!visible)
            hidden();
    }
}
