import QtQuick 2.9
import "../../Singletons"

/// Shows the place of a drop: the gap between two rows, and by its left end the
/// level of the tree.
Item {
    id: marker

    property real barWidth: 0

    function show(x, y) {
        marker.x = x;
        marker.y = y;
        visible = true;
    }

    visible: false
    width: barWidth
    height: 11

    Rectangle {
        y: 4
        width: marker.barWidth
        height: 3
        color: Theme.dropMarker
    }

    Rectangle {
        width: 3
        height: 11
        color: Theme.dropMarker
    }
}
