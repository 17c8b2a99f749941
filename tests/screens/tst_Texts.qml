import QtQuick 2.9
import QtTest 1.1
import "qrc:/qml/Controls"
import "qrc:/qml/QtControls"

Item {
    id: scene

    width: 500
    height: 400

    RectangleTextInput {
        id: input
        width: 160
        height: 24
    }

    RectangleTextEdit {
        id: edit
        y: 40
        width: 160
        height: 80
    }

    ScrollView {
        id: scrollView
        y: 140
        width: 160
        height: 60

        ListView {
            id: listView
            model: 40
            delegate: Text {
                height: 20
                text: index
            }
        }
    }

    SignalSpy {
        id: finished
        target: input
        signalName: "editingFinished"
    }

    TestCase {
        name: "Texts"
        when: windowShown

        function test_inputFinishesByReturnAndByLeaving() {
            mouseClick(input, 10, 12);
            finished.clear();
            keyClick("a");
            compare(finished.count, 0);
            keyClick(Qt.Key_Return);
            compare(finished.count, 1);
            keyClick("b");
            mouseClick(edit, 10, 10);
            compare(finished.count, 2);
            compare(input.text, "ab");
        }

        function test_listsAreNotFlicked() {
            mouseDrag(scrollView, 40, 50, 0, -45);
            compare(listView.contentY, 0);
        }
    }
}
