import QtQuick 2.9
import Morvi.kess 1.0
import "QtControls"

/// The licences of what the program uses, in full and in their own language.
ScrollView {
    id: root

    readonly property string licences: [
        "本ソフトウェアは、GNU Lesser General Public License に基づいて Qt を使用しています。",
        unwrapped(SystemService.loadFile(":/qml/Licences/LGPL.txt")),
        unwrapped(SystemService.loadFile(":/qml/Licences/BSD.txt"))
    ].join("\n\n")

    // The lines of a paragraph become one, which breaks at the width of this view. A centred line
    // and one that ends with an address stand alone, and an entry of a list begins a line.
    function unwrapped(text) {
        return text.replace(/(.*\S)\n[^\S\n]*(?=(\S.*))/g, function(match, line, next) {
            var alone = /^ {9}|>$/.test(line) || /^(\*|\w\)|\d+\.) /.test(next);
            return alone ? match : line + " ";
        });
    }

    // By the keys of a page, as there is no cursor to be seen.
    function scroll(distance) {
        var area = flickableItem;
        area.contentY = Math.max(0, Math.min(area.contentY + distance, area.contentHeight - viewport.height));
    }

    TextEdit {
        objectName: "licences"
        Accessible.name: qsTranslate("main", "License")
        activeFocusOnTab: true
        width: 560
        wrapMode: TextEdit.Wrap
        readOnly: true
        selectByMouse: true
        font.pixelSize: 16
        text: root.licences

        Keys.onPressed: {
            var page = root.viewport.height - 32;
            switch (event.key) {
            case Qt.Key_Up: root.scroll(-32); break;
            case Qt.Key_Down: root.scroll(32); break;
            case Qt.Key_PageUp: root.scroll(-page); break;
            case Qt.Key_PageDown: root.scroll(page); break;
            case Qt.Key_Home: root.scroll(-contentHeight); break;
            case Qt.Key_End: root.scroll(contentHeight); break;
            default: return;
            }
            event.accepted = true;
        }
    }
}
