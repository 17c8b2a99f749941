import QtQuick 2.9
import QtQuick.Window 2.2
import QtTest 1.1
import Morvi.kess 1.0
import "qrc:/qml/Controls"
import "qrc:/qml/QtControls"

Item {
    width: 400
    height: 200

    SpinBox {
        id: spinBox
        width: 120
        height: 28
        minimumValue: -100
        maximumValue: 100
        value: 10
    }

    RectangleTextInput {
        id: other
        y: 100
        width: 100
        height: 24
    }

    SignalSpy {
        id: finished
        target: spinBox
        signalName: "editingFinished"
    }

    Component {
        id: ownWindow

        Window {
            property alias box: box

            width: 200
            height: 100

            SpinBox {
                id: box
                width: 100
                height: 28
                focus: true
            }
        }
    }

    TestCase {
        name: "SpinBox"
        when: windowShown

        function init() {
            mouseClick(other);
            spinBox.value = 10;
            finished.clear();
        }

        // The up arrow is the square at the right end, the down arrow the one beside it.
        function test_arrows_data() {
            return [
                { "tag": "up", "x": 106, "value": 11 },
                { "tag": "down", "x": 78, "value": 9 },
                { "tag": "left of them", "x": 40, "value": 10 }
            ];
        }

        function test_arrows(data) {
            mouseClick(spinBox, data.x, 22);
            compare(spinBox.value, data.value);
            compare(finished.count, data.value === 10 ? 0 : 1);
        }

        function test_wheelNeedsFocus() {
            mouseWheel(spinBox, 20, 14, 0, 120);
            compare(spinBox.value, 10);
            mouseClick(spinBox, 20, 14);
            mouseWheel(spinBox, 20, 14, 0, 120);
            compare(spinBox.value, 11);
        }

        // A step commits; any other change waits for the end of the edit.
        function test_commit() {
            spinBox.value = 15;
            compare(finished.count, 0);
            spinBox.value = 16;
            compare(finished.count, 1);
            finished.clear();
            mouseClick(spinBox, 20, 14);
            keyClick(Qt.Key_A, Qt.ControlModifier);
            keyClick("4");
            keyClick("2");
            keyClick(Qt.Key_Return);
            compare(spinBox.value, 42);
            verify(finished.count > 0);
        }

        // However the loss of the focus and the hiding come together, each
        // request is taken back once.
        function test_inputMethodFollowsWindow() {
            var window = ownWindow.createObject(null);
            window.show();
            window.requestActivate();
            tryCompare(window.box, "activeFocus", true);
            compare(Gui.openRequests, 1);
            window.hide();
            tryCompare(Gui, "openRequests", 0);
            window.show();
            window.requestActivate();
            tryCompare(window.box, "activeFocus", true);
            tryCompare(Gui, "openRequests", 1);
            window.destroy();
            tryCompare(Gui, "openRequests", 0);
        }
    }
}
