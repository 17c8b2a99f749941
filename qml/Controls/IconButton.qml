import QtQuick 2.9
import "../QtControls"

/// A square button that shows a picture. A picture given as the toolkit's
/// `iconSource` moves over to `imageSource`.
Button {
    id: root

    property alias imageSource: image.source

    function takeIconSource() {
        if (iconSource.toString() === "")
            return;
        imageSource = iconSource;
        iconSource = "";
    }

    width: 40
    height: 40
    style: IconButtonLook {}

    onIconSourceChanged: takeIconSource()
    Component.onCompleted: takeIconSource()

    Image {
        id: image
        anchors.fill: parent
    }
}
