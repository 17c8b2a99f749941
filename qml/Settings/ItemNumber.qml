import QtQuick 2.9

/// A field that holds a number.
ItemField {
    property int value: 0

    onValueChanged: changed()
}
