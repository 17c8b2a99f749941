import QtQuick 2.9
import "../QtControls"

/// A button of a dialog, which Return presses as well as the space bar.
Button {
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
}
