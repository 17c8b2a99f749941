import QtQuick 2.9 as Toolkit
import "../Singletons"

Toolkit.Text {
    color: Theme.normalText
    font.family: Theme.normalFont
    font.pixelSize: Theme.fontSize
}
