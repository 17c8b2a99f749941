import QtQuick 2.9
import QtQuick.Controls 1.4 as Toolkit
import QtQuick.Controls.Styles 1.4
import "../Singletons"
import "looks"
import "toolkit.js" as Internals

Toolkit.ComboBox {
    id: root

    /// What it chooses, for who can't see its label.
    property string accessibleName: ""

    function accessiblePressAction() {
        Internals.openList(root);
    }

    function accessibleIncreaseAction() {
        currentIndex = Math.min(currentIndex + 1, count - 1);
    }

    function accessibleDecreaseAction() {
        currentIndex = Math.max(currentIndex - 1, 0);
    }

    Accessible.name: accessibleName || currentText
    Accessible.description: accessibleName ? currentText : ""
    style: Theme.toolkitSurfaces ? toolkitLook : themedLook

    Component {
        id: toolkitLook

        ComboBoxStyle {
            textColor: root.enabled ? Theme.normalText : Theme.disabledText
            font.family: Theme.mediumFont
            font.weight: Theme.mediumWeight
            font.pixelSize: Theme.labelFontSize
        }
    }

    Component {
        id: themedLook

        ComboBoxStyle {
            textColor: root.enabled ? surfaceText : Theme.disabledText
            selectionColor: Theme.selectedBack
            selectedTextColor: Theme.selectedText
            font.family: Theme.mediumFont
            font.weight: Theme.mediumWeight
            font.pixelSize: Theme.labelFontSize
            background: ButtonSurface {
                control: root

                ArrowMark {
                    anchors.right: parent.right
                    anchors.rightMargin: 8
                    anchors.verticalCenter: parent.verticalCenter
                    color: textColor
                }
            }

            readonly property color surfaceText: root.hovered || root.pressed ? Theme.hotButtonText : Theme.normalText
        }
    }
}
