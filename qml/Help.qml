import QtQuick 2.9
import Morvi.kess 1.0
import "QtControls"

/// The licences of what the program uses, in full and in their own language.
ScrollView {
    id: root

    readonly property string licences: [
        "本ソフトウェアは、GNU Lesser General Public License に基づいて Qt を使用しています。",
        SystemService.loadFile(":/qml/Licences/LGPL.txt"),
        SystemService.loadFile(":/qml/Licences/BSD.txt")
    ].join("\n\n")

    TextEdit {
        objectName: "licences"
        width: 560
        wrapMode: TextEdit.Wrap
        readOnly: true
        selectByMouse: true
        font.pixelSize: 16
        text: root.licences
    }
}
