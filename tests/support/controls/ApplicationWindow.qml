import QtQuick 2.9
import QtQuick.Window 2.2

/// Stands in for the window of Qt Quick Controls 1 where Qt has been built without them. The guidance takes nothing
/// else of them.
Window {
    property Item menuBar: null
    readonly property Item activeItem: activeFocusItem
}
