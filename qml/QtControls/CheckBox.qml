import QtQuick 2.9
import QtQuick.Controls 1.4 as Toolkit
import QtQuick.Controls.Styles 1.4
import "looks"

Toolkit.CheckBox {
    id: root

    style: CheckBoxStyle {
        label: CheckableLabel {
            control: root
        }
    }
}
