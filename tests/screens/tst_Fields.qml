import QtQuick 2.9
import QtQuick.Window 2.2
import QtTest 1.1
import Morvi.kess 1.0
import "qrc:/qml/Controls"
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

    NameIdComboBox {
        id: nameBox
        y: 40
        nameList: ["one", "two", "three"]
    }

    ScrollView {
        id: scrollView
        y: 80
        width: 160
        height: 60

        Item { height: 400 }
    }

    ListView {
        id: list
        x: 200
        width: 100
        height: 60
        model: 40
        delegate: Text { text: index }
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
            box.value = 15;
            compare(finished, 0);
            box.value = 16;
            compare(finished, 1);
            mouseClick(box, 20, 14);
            keyClick("4");
            compare(finished, 1);
            keyClick(Qt.Key_Return);
            verify(finished > 1);
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

        function test_boxYieldsIds() {
            nameBox.itemId = 30;
            verify(!nameBox.enabled);
            nameBox.idList = [30, 10, 20];
            compare(nameBox.currentIndex, 0);
            nameBox.forceActiveFocus();
            keyClick(Qt.Key_Down);
            compare(nameBox.itemId, 10);
            nameBox.updating = true;
            keyClick(Qt.Key_Down);
            compare(nameBox.itemId, 10);
        }

        function test_listsAreNotFlicked() {
            mouseDrag(scrollView, 40, 50, 0, -45);
            compare(scrollView.flickableItem.contentY, 0);
            mouseDrag(list, 40, 50, 0, -45);
            compare(list.contentY, 0);
        }
    }
}
