import QtQuick 2.9
import "../../Singletons"

/// Icon and text of a button, centred as a whole. The text's width is fixed
/// once there is a text, and kept by the button, since a change of the theme makes
/// a new label; a longer text is elided from then on.
Item {
    id: label

    property Item control: null
    property bool completed: false
    readonly property int iconWidth: icon.source.toString() === "" ? 0 : icon.width

    function fixTextWidth() {
        if (!completed || control.textWidth > 0 || caption.text === "")
            return;
        control.textWidth = control.width > 0 ? Math.max(0, control.width - iconWidth)
                                              : Math.ceil(caption.implicitWidth) + 4;
    }

    implicitWidth: caption.width + iconWidth
    implicitHeight: caption.implicitHeight
    opacity: !control || control.enabled ? 1 : Theme.disabledOpacity

    Component.onCompleted: {
        completed = true;
        fixTextWidth();
    }

    Row {
        // The style's padding is the same on both sides, so that this is the
        // middle of the control too.
        x: (label.width - (caption.width + label.iconWidth)) / 2
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

            width: text === "" || !label.control ? 0 : label.control.textWidth
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
            font.weight: Theme.mediumWeight
            font.pixelSize: Theme.fontSize
            onTextChanged: label.fixTextWidth()
        }
    }
}
