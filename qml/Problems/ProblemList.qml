import QtQuick 2.9
import Morvi.kess 1.0
import "../Controls"
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

    ListKeys {
        id: listKeys
        list: list
        onChosen: root.request(row)
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.normalBack1
        border.width: 1
        border.color: list.activeFocus ? Theme.focusFrame : Theme.controlFrame
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
            activeFocusOnTab: true
            Accessible.role: Accessible.List
            Accessible.name: qsTr("Problems")
            clip: true
            model: root.problems
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

            Keys.forwardTo: listKeys
            Keys.onPressed: {
                if (!event.matches(StandardKey.Copy))
                    return;
                root.problems.copyRow(currentIndex);
                event.accepted = true;
            }
        }
    }
}
