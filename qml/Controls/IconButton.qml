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
    onActiveFocusChanged: if (!activeFocus) keyTooltip.active = false
    Component.onCompleted: takeIconSource()

    Image {
        id: image
        anchors.fill: parent
    }

    // The toolkit's tooltip comes with the mouse alone, and keys alone bring the focus here.
    Timer {
        interval: 700
        running: root.activeFocus && !root.hovered && root.tooltip !== ""
        onTriggered: keyTooltip.active = true
    }

    Loader {
        id: keyTooltip
        objectName: "keyTooltip"
        active: false
        sourceComponent: Component {
            Tooltip {
                target: root
                text: root.tooltip
            }
        }
    }
}
