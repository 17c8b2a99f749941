import QtQuick 2.9
import QtQuick.Controls.Styles 1.4
import "../QtControls"
import "../Singletons"

/// Looks of a PopupMenuButton.
ButtonStyle {
    id: look

    label: Item {
        implicitWidth: caption.contentWidth
        implicitHeight: caption.contentHeight

        Text {
            id: caption
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width
            elide: Text.ElideRight
            text: " " + look.control.text
            color: look.control.enabled ? Theme.menuButtonText : Theme.disabledText
            font.family: Theme.mediumFont
            font.weight: Theme.mediumWeight
        }

        Binding {
            target: look.control
            property: "iwidth"
            value: Math.ceil(caption.implicitWidth)
        }

        Binding {
            target: look.control
            property: "iheight"
            value: Math.ceil(caption.implicitHeight)
        }
    }

    background: Item {
        implicitWidth: Math.round(look.control.iheight * 4.5)
        implicitHeight: Math.max(25, Math.round(look.control.iheight * 1.2))

        Rectangle {
            anchors.fill: parent
            anchors.bottomMargin: look.control.pressed ? 0 : -1
            color: Theme.menuButtonShadow
            radius: body.radius
        }

        Rectangle {
            id: body
            anchors.fill: parent
            radius: look.control.iheight * 0.16
            border.color: look.control.activeFocus ? Theme.menuButtonFocus : Theme.menuButtonFrame
            gradient: Gradient {
                GradientStop {
                    position: 0
                    color: look.control.pressed ? Theme.pressedMenuButton1 : Theme.menuButton1
                }
                GradientStop {
                    position: look.control.pressed ? 0.1 : 1
                    color: look.control.pressed ? Theme.pressedMenuButton2 : Theme.menuButton2
                }
            }

            Rectangle {
                anchors.fill: parent
                radius: parent.radius
                color: look.control.activeFocus ? Theme.menuButtonFocus : Theme.menuButtonGlow
                opacity: look.control.hovered || look.control.activeFocus ? 0.1 : 0

                Behavior on opacity {
                    NumberAnimation {
                        duration: 100
                    }
                }
            }
        }

        Image {
            visible: look.control.menu !== null
            source: "../../icon/arrow-down.png"
            anchors.verticalCenter: parent.verticalCenter
            anchors.right: parent.right
            anchors.rightMargin: 4
            opacity: look.control.enabled ? 1 : 0.5
        }
    }
}
