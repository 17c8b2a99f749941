import QtQuick 2.9

/// A field that holds a text.
ItemField {
    property string value: ""

    onValueChanged: changed()
}
