import QtQuick 2.9
import QtQuick.Controls 1.4 as Toolkit
import "looks"

Toolkit.GroupBox {
    id: root

    property int stylePaddingTop: 26

    // The toolkit offers no public style type for this control. It reads these
    // two members of whatever object the component makes.
    style: QtObject {
        readonly property QtObject padding: QtObject {
            readonly property int top: root.stylePaddingTop
            readonly property int left: 10
            readonly property int right: 10
            readonly property int bottom: 8
        }
        readonly property Component panel: Component {
            GroupBoxPanel {
                control: root
            }
        }
    }
}
