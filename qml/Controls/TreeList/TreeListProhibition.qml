import QtQuick 2.9

/// The prohibition toggle of a row.
Row {
    id: toggle

    /// The TreeListItem, which knows this type.
    property MouseArea delegate: null

    function toggled() {
        delegate.tree.edits.setProhibited([delegate.rowId], !delegate.prohibited);
    }

    function accessibleToggleAction() {
        toggled();
    }

    function accessiblePressAction() {
        toggled();
    }

    Accessible.role: Accessible.CheckBox
    Accessible.name: qsTr("Prohibited")
    Accessible.checked: delegate.prohibited
    Accessible.focusable: false

    Image {
        width: 20
        height: 20
        source: "../../../icon/prohibited.png"
        opacity: toggle.delegate.prohibited ? 1 : 0.5

        MouseArea {
            anchors.fill: parent
            onClicked: toggle.toggled()
        }
    }
}
