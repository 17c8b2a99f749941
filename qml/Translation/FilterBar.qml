import QtQuick 2.9
import Morvi.kess 1.0
import "../Controls"
import "../QtControls"
import "../Singletons"

/// Which hints are shown. Its texts belong to the window.
Row {
    id: root

    property HintTableModel hints: null
    property int filter: HintTableModel.All
    readonly property alias text: search.text
    readonly property alias searching: searchScope.activeFocus

    /// It was chosen, be it for another time.
    signal chosen()
    signal tableRequested()

    function choose(newFilter) {
        filter = newFilter;
        chosen();
    }

    function takeKeys() {
        searchScope.forceActiveFocus();
    }

    spacing: 12

    Repeater {
        model: [
            qsTranslate("TranslationWindow", "All: %1").arg(root.hints.allCount),
            qsTranslate("TranslationWindow", "Missing: %1").arg(root.hints.missingCount),
            qsTranslate("TranslationWindow", "Stale: %1").arg(root.hints.staleCount)
        ]

        RadioButton {
            anchors.verticalCenter: parent.verticalCenter
            text: modelData
            checked: root.filter === index
            onClicked: {
                checked = Qt.binding(function() { return root.filter === index; });
                root.choose(index);
            }
        }
    }

    Label {
        id: searchLabel
        anchors.verticalCenter: parent.verticalCenter
        text: qsTranslate("TranslationWindow", "Search:")
    }

    FocusScope {
        id: searchScope
        anchors.verticalCenter: parent.verticalCenter
        width: 220
        height: 26

        RectangleTextInput {
            id: search
            objectName: "hintSearch"
            accessibleName: searchLabel.text
            anchors.fill: parent
            keyFilter: searchKeys
            onTextChanged: root.chosen()
        }
    }

    Item {
        id: searchKeys
        Keys.onReturnPressed: root.tableRequested()
        Keys.onEnterPressed: root.tableRequested()
        Keys.onDownPressed: root.tableRequested()
        Keys.onTabPressed: root.tableRequested()
        Keys.onEscapePressed: {
            search.text = "";
            root.tableRequested();
        }
    }
}
