import QtQuick 2.9
import QtQuick.Controls 1.4 as Toolkit

Toolkit.ScrollView {
    id: root

    Component.onCompleted: root.flickableItem.interactive = false
}
