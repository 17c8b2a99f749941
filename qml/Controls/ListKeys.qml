import QtQuick 2.9

/// The keys of a list with a current row, which it forwards to this: to a row, and what is done there.
Item {
    id: root

    property ListView list: null

    signal chosen(int row)

    function goTo(row) {
        if (list.count > 0)
            list.currentIndex = Math.max(0, Math.min(row, list.count - 1));
    }

    function rowsOfPage() {
        var height = list.currentItem ? list.currentItem.height : 24;
        return Math.max(1, Math.floor(list.height / height) - 1);
    }

    Keys.onReturnPressed: if (list.currentIndex >= 0) chosen(list.currentIndex)
    Keys.onEnterPressed: if (list.currentIndex >= 0) chosen(list.currentIndex)
    Keys.onPressed: {
        switch (event.key) {
        case Qt.Key_Up: goTo(list.currentIndex - 1); break;
        case Qt.Key_Down: goTo(list.currentIndex + 1); break;
        case Qt.Key_Home: goTo(0); break;
        case Qt.Key_End: goTo(list.count - 1); break;
        case Qt.Key_PageUp: goTo(list.currentIndex - rowsOfPage()); break;
        case Qt.Key_PageDown: goTo(list.currentIndex + rowsOfPage()); break;
        default: return;
        }
        event.accepted = true;
    }
}
