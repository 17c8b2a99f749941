import QtQuick 2.9 as Toolkit
import "../Singletons"

Toolkit.Text {
    // A name may look like rich text, which may load files.
    textFormat: Toolkit.Text.PlainText
    color: Theme.normalText
    font.family: Theme.normalFont
    font.pixelSize: Theme.fontSize
}
