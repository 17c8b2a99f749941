import QtQuick 2.9
import QtQuick.Dialogs 1.2
import Morvi.kess 1.0

/// Asks for the file of a translator.
FileDialog {
    id: root

    signal chosen(string file)

    nameFilters: ["XLIFF (*.xlf *.xliff)"]
    onAccepted: chosen(SystemService.getLocalFileFromUrl(fileUrl))
}
