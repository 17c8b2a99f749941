import QtQuick 2.9
import QtQuick.Window 2.2
import Qt.labs.settings 1.0
import Morvi.kess 1.0
import "Problems"
import "QtControls"
import "Singletons"

/// What is wrong with the tutorial, for its writer. It stays in line with the
/// tutorial while that is edited; a double click goes to the step.
Window {
    id: root

    property TutorialProblems problems: null

    signal stepRequested(int itemId)

    objectName: "ProblemsWindow"
    title: qsTr("Check tutorial")
    flags: Qt.Window | Qt.WindowTitleHint | Qt.WindowSystemMenuHint | Qt.WindowCloseButtonHint
    width: 720
    height: 360
    color: Theme.window2

    Settings {
        category: "ProblemsWindow.root"
        property alias x: root.x
        property alias y: root.y
        property alias width: root.width
        property alias height: root.height
    }

    DocumentKeys {}

    Shortcut {
        sequence: "Escape"
        onActivated: root.hide()
    }

    Text {
        id: summary
        objectName: "problemsSummary"
        Accessible.role: Accessible.StaticText
        Accessible.name: text
        anchors {
            top: parent.top
            left: parent.left
            right: parent.right
            margins: 8
        }
        elide: Text.ElideRight
        text: {
            if (TutorialManager.tutorialName === "")
                return qsTr("No tutorial is open.");
            if (root.problems.count === 0)
                return qsTr("No problems.");
            return qsTr("Errors: %1, warnings: %2, remarks: %3")
                    .arg(root.problems.errors).arg(root.problems.warnings).arg(root.problems.remarks);
        }
    }

    ProblemList {
        objectName: "problemsList"
        anchors {
            top: summary.bottom
            left: parent.left
            right: parent.right
            bottom: parent.bottom
            margins: Theme.margin
            topMargin: 8
        }
        focus: true
        problems: root.problems
        onStepRequested: root.stepRequested(itemId)
    }
}
