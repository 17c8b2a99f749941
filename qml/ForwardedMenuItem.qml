import QtQuick 2.9
import QtQuick.Controls 1.4

/// An entry of the menu bar that stands for an entry of the list's own menu.
MenuItem {
    id: root

    /// The menu of the list that has the focus, or null.
    property QtObject activeMenu: null
    property string member: ""
    readonly property QtObject target: activeMenu && activeMenu[member] ? activeMenu[member] : null

    enabled: target !== null && target.enabled

    onTriggered: target.trigger()
}
