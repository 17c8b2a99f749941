import QtQuick 2.9

/// A field that holds a yes or no.
ItemField {
    property bool value: false

    onValueChanged: changed()
}
