import QtQuick 2.9
import "../../Singletons"

/// Icon and text of a button, centred as a whole. The text's width is fixed
/// once there is a text; a longer one is elided from then on.
Item {
    id: label

    property Item control: null
    readonly property int iconWidth: icon.visible ? icon.width : 0

    function fixTextWidth() {
        if (caption.fixedWidth > 0 || caption.text === "")
            return;
        caption.fixedWidth = control.width > 0 ? control.width : caption.contentWidth + 4;
    }

    implicitWidth: caption.width + iconWidth
    implicitHeight: caption.implicitHeight
    opacity: !control || control.enabled ? 1 : Theme.disabledOpacity

    Row {
        // The label lies inside the style's padding, the icon and the text are
        // measured against the whole control.
        x: label.control ? (label.control.width - (caption.width + label.iconWidth)) / 2 - label.x : 0
        anchors.verticalCenter: parent.verticalCenter

        Image {
            id: icon
            visible: source.toString() !== ""
            source: label.control ? label.control.iconSource : ""
            width: label.control ? label.control.height : 0
            height: width
            fillMode: Image.PreserveAspectFit
            anchors.verticalCenter: parent.verticalCenter
        }

        Text {
            id: caption

            property real fixedWidth: 0

            width: text === "" ? 0 : fixedWidth
            text: label.control ? label.control.text : ""
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignHCenter
            anchors.verticalCenter: parent.verticalCenter
            color: {
                if (!label.control || !label.control.enabled)
                    return Theme.disabledText;
                if (label.control.checked)
                    return Theme.hotButtonText;
                if (label.control.pressed)
                    return Theme.pressedButtonText;
                return label.control.hovered ? Theme.hotButtonText : Theme.normalText;
            }
            font.family: Theme.mediumFont
            font.pixelSize: Theme.fontSize
            onTextChanged: label.fixTextWidth()
            Component.onCompleted: label.fixTextWidth()
        }
    }
}
