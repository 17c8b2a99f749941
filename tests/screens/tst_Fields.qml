import QtQuick 2.9
import QtQuick.Window 2.2
import QtTest 1.1
import Morvi.kess 1.0
import "qrc:/qml/QtControls"

Item {
    id: scene

    width: 400
    height: 200

    Component {
        id: boxComponent

        SpinBox {
            width: 120
            height: 28
            value: 10
        }
    }

    TextInput {
        id: other
        y: 150
    }

    TestCase {
        name: "Fields"
        when: windowShown

        property SpinBox box: null
        property int finished: 0

        function init() {
            other.forceActiveFocus();
            box = createTemporaryObject(boxComponent, scene);
            finished = 0;
            box.editingFinished.connect(function() { ++finished; });
        }

        // The up arrow is the square at the right end, the down arrow the one beside it.
        function test_arrows() {
            [[106, 11, 1], [78, 10, 2], [40, 10, 2]].forEach(function(row) {
                mouseClick(box, row[0], 22);
                compare(box.value, row[1]);
                compare(finished, row[2]);
            });
        }

        function test_wheelNeedsFocus() {
            mouseWheel(box, 20, 14, 0, 120);
            compare(box.value, 10);
            mouseClick(box, 20, 14);
            mouseWheel(box, 20, 14, 0, 120);
            compare(box.value, 11);
        }

        // A step commits; any other change waits for the end of the edit.
        function test_commit() {
            mouseClick(box, 20, 14);
            keyClick("4");
            compare(finished, 0);
            keyClick(Qt.Key_Return);
            verify(finished > 0);
        }

        // However focus, window and box go, each request is taken back once.
        function test_inputMethodIsOffWithTheFocus() {
            box.forceActiveFocus();
            verify(!setup.acceptsInputMethod());
            var window = scene.Window.window;
            Gui.setIme(window, false);
            other.forceActiveFocus();
            verify(!setup.acceptsInputMethod());
            Gui.setIme(window, true);
            verify(setup.acceptsInputMethod());
            box.forceActiveFocus();
            window.hide();
            window.show();
            window.requestActivate();
            tryVerify(function() { return box.activeFocus && !setup.acceptsInputMethod(); });
            other.forceActiveFocus();
            verify(setup.acceptsInputMethod());
            box.forceActiveFocus();
            box.destroy();
            wait(0);
            other.forceActiveFocus();
            verify(setup.acceptsInputMethod());
        }
    }
}
