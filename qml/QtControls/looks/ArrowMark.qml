import QtQuick 2.9
import "../../Singletons"

/// A small arrow in a text's colour, for surfaces that the toolkit's dark
/// pictures can't be seen on.
Text {
    property bool up: false

    text: up ? "\u25b2" : "\u25bc"
    color: Theme.normalText
    font.family: Theme.symbolFontName
    font.pixelSize: 8
}
