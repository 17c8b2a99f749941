import QtQuick 2.9
import QtQuick.Controls.Styles 1.4
import QtGraphicalEffects 1.0
import "../Singletons"

/// The layers of an icon button, from the bottom up.
ButtonStyle {
    id: look

    padding {
        top: 0
        left: 0
        right: 0
        bottom: 0
    }
    label: null
    background: Item {
        Rectangle {
            id: tint
            anchors.fill: parent
            color: look.control.enabled ? Theme.toolButton : Theme.disabledToolButton
            visible: false
        }

        Image {
            id: base
            anchors.fill: parent
            source: "../../icon/button_base.png"
            // A backend without shaders shows it as it is.
            visible: GraphicsInfo.api === GraphicsInfo.Software
        }

        Blend {
            objectName: "base"
            anchors.fill: parent
            source: base
            foregroundSource: tint
            mode: "multiply"
        }

        Image {
            objectName: "hovered"
            anchors.fill: parent
            source: "../../icon/button_hovered.png"
            visible: look.control.activeFocus || look.control.hovered
        }

        Image {
            objectName: "checked"
            anchors.fill: parent
            source: "../../icon/button_checked.png"
            visible: look.control.checked && !look.control.pressed
        }

        Image {
            objectName: "pressed"
            anchors.fill: parent
            source: "../../icon/button_pressed.png"
            visible: look.control.pressed
        }
    }
}
