import QtQuick 2.9
import QtQuick.Controls 1.4 as Toolkit
import QtQuick.Controls.Styles 1.4
import "looks"

Toolkit.RadioButton {
    id: root

    function accessiblePressAction() {
        clicked();
    }

    function accessibleToggleAction() {
        clicked();
    }

    style: RadioButtonStyle {
        label: CheckableLabel {
            control: root
            // As high as the mark that the toolkit puts beside its top.
            height: Math.round(toolkitText.implicitHeight)
        }
    }

    Text {
        id: toolkitText
        visible: false
    }
}
