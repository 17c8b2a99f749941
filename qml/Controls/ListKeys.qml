import QtQuick 2.9

/// The keys of a list with a current row, which it forwards to this: to a row, and what is done there.
Item {
    id: root

    property ListView list: null
    /// What scrolls the rows: the list itself, or what the list stands in at its full height.
    property Flickable area: list

    signal chosen(int row)

    function goTo(row) {
        if (list.count > 0)
            list.currentIndex = Math.max(0, Math.min(row, list.count - 1));
    }

    /// The last row, or the first one, that is in view as a whole; -1 for none.
    function rowAtEdge(last) {
        var top = area.contentY;
        var bottom = top + area.height;
        var item = list.itemAt(1, last ? bottom - 1 : top);
        var row = list.indexAt(1, last ? bottom - 1 : top);
        if (!item)
            return last ? list.count - 1 : 0;
        if (last)
            return item.y + item.height <= bottom + 1 ? row : row - 1;
        return item.y >= top - 1 ? row : row + 1;
    }

    function scrollTo(row, toTop) {
        if (area === list) {
            list.positionViewAtIndex(row, toTop ? ListView.Beginning : ListView.End);
            return;
        }
        var item = list.currentItem;
        var y = toTop ? item.y : item.y + item.height - area.height;
        area.contentY = Math.max(0, Math.min(y, area.contentHeight - area.height));
    }

    // The rows are of different heights: a page is what comes into view when the current row goes
    // from one edge to the other.
    function goByPage(down) {
        var current = list.currentIndex;
        list.forceLayout();
        if (current < 0 || (down ? rowAtEdge(true) <= current : rowAtEdge(false) >= current))
            scrollTo(Math.max(0, current), down);
        goTo(down ? Math.max(rowAtEdge(true), current + 1) : Math.min(rowAtEdge(false), current - 1));
    }

    Keys.onReturnPressed: if (list.currentIndex >= 0) chosen(list.currentIndex)
    Keys.onEnterPressed: if (list.currentIndex >= 0) chosen(list.currentIndex)
    Keys.onPressed: {
        switch (event.key) {
        case Qt.Key_Up: goTo(list.currentIndex - 1); break;
        case Qt.Key_Down: goTo(list.currentIndex + 1); break;
        case Qt.Key_Home: goTo(0); break;
        case Qt.Key_End: goTo(list.count - 1); break;
        case Qt.Key_PageUp: goByPage(false); break;
        case Qt.Key_PageDown: goByPage(true); break;
        default: return;
        }
        event.accepted = true;
    }
}
