import QtQuick 2.9
import Morvi.kess 1.0

/// The prohibition toggle of a row.
Row {
    id: toggle

    /// The TreeListItem, which knows this type.
    property MouseArea delegate: null

    Image {
        width: 20
        height: 20
        source: "../../../icon/prohibited.png"
        opacity: toggle.delegate.prohibited ? 1 : 0.5

        MouseArea {
            anchors.fill: parent
            onClicked: {
                var tree = toggle.delegate.tree;
                var id = toggle.delegate.rowId;
                UndoRedo.beginSequence("changeProhibited");
                tree.treeListModel.setValue(id, "prohibited", !toggle.delegate.prohibited);
                UndoRedo.endSequence();
                tree.itemUpdated(id);
            }
        }
    }
}
