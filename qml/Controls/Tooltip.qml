import QtQuick 2.9
import QtQuick.Window 2.2
import "../QtControls"
import "../Singletons"

/// Words about an item, below it and above all else in its window. The texts
/// are plain; the toolkit's tooltips would take some of them for rich text,
/// which may load files.
Rectangle {
    id: root

    property Item target: null
    property alias text: words.text

    readonly property point place: target ? target.mapToItem(parent, 0, target.height + 4) : Qt.point(0, 0)

    parent: target ? target.Window.contentItem : null
    z: 1000
    x: parent ? Math.max(4, Math.min(place.x, parent.width - width - 4)) : 0
    y: parent && place.y + height > parent.height ? place.y - height - target.height - 8 : place.y
    width: words.width + 12
    height: words.height + 8
    color: Theme.normalBack1
    border.width: 1
    border.color: Theme.controlFrame

    Text {
        id: words
        x: 6
        y: 4
        width: Math.min(implicitWidth, 360)
        wrapMode: Text.Wrap
    }
}
