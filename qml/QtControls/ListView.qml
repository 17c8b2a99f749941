import QtQuick 2.9 as Toolkit

Toolkit.ListView {
    id: root

    Toolkit.Component.onCompleted: root.interactive = false
}
