import QtQuick 2.9
import QtQuick.Dialogs 1.2

/// Asks for the file of a tutorial, which need not exist yet. `callback` is
/// called with 1 or -1.
FileDialog {
    id: root

    property var callback: null

    function answer(result) {
        var answered = callback;
        callback = null;
        if (answered)
            answered(result);
        close();
    }

    objectName: "TutorialSelectDialog"
    title: qsTr("Open tutorial")
    selectFolder: false
    nameFilters: ["%1 (*.%2)".arg(qsTr("Tutorial file")).arg("js")]

    onAccepted: answer(1)
    onRejected: answer(-1)
    // In this order the toolkit takes any one name, as when saving, but opens
    // it: with no question whether a file that exists may be replaced.
    Component.onCompleted: {
        selectExisting = false;
        selectMultiple = true;
    }
}
