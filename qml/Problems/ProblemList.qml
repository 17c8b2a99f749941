import QtQuick 2.9
import Morvi.kess 1.0
import "../QtControls"
import "../Singletons"

/// The list of problems, with its keys.
FocusScope {
    id: root

    property TutorialProblems problems: null

    signal stepRequested(int itemId)

    function request(row) {
        var id = problems.itemIdAt(row);
        if (id >= 0)
            stepRequested(id);
    }

    function goTo(row) {
        list.currentIndex = Math.max(0, Math.min(row, list.count - 1));
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.normalBack1
        border.width: 1
        border.color: Theme.controlFrame
    }

    // The list is what the view scrolls, so that only the rows in view exist.
    ScrollView {
        anchors.fill: parent
        anchors.margins: 1
        focus: true

        ListView {
            id: list
            objectName: "rows"
            focus: true
            clip: true
            model: root.problems
            keyNavigationEnabled: true
            highlightMoveDuration: 0

            delegate: ProblemRow {
                view: list
                row: index
                width: list.width
                onDoubleClicked: root.request(index)
            }

            onCountChanged: if (currentIndex < 0 && count > 0) currentIndex = 0
            // The list knows the height of a row only once that is there.
            onCurrentIndexChanged: positionViewAtIndex(currentIndex, ListView.Contain)

            Keys.onReturnPressed: root.request(currentIndex)
            Keys.onEnterPressed: root.request(currentIndex)
            Keys.onPressed: {
                if (event.matches(StandardKey.Copy))
                    root.problems.copyRow(currentIndex);
                else if (event.key === Qt.Key_Home)
                    root.goTo(0);
                else if (event.key === Qt.Key_End)
                    root.goTo(count - 1);
                else if (event.key === Qt.Key_PageUp)
                    root.goTo(indexAt(0, contentY) - 1);
                else if (event.key === Qt.Key_PageDown)
                    root.goTo(indexAt(0, contentY + height - 1) + 1);
                else
                    return;
                event.accepted = true;
            }
        }
    }
}
