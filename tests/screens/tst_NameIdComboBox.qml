import QtQuick 2.9
import QtTest 1.1
import "qrc:/qml/Controls"

Item {
    id: scene

    width: 300
    height: 200

    Component {
        id: boxComponent

        NameIdComboBox {
            width: 160
            nameList: ["one", "two", "three"]
            idList: [10, 20, 30]
        }
    }

    TestCase {
        id: test
        name: "NameIdComboBox"
        when: windowShown

        function test_choiceOfTheUser() {
            var box = createTemporaryObject(boxComponent, scene, { "itemId": 10 });
            box.forceActiveFocus();
            keyClick(Qt.Key_Down);
            compare(box.itemId, 20);
            box.updating = true;
            keyClick(Qt.Key_Down);
            compare(box.itemId, 20);
        }

        function test_idListComesLater() {
            var box = createTemporaryObject(boxComponent, scene, { "itemId": 30, "idList": [] });
            verify(!box.enabled);
            box.idList = [30, 10, 20];
            compare(box.itemId, 30);
            compare(box.currentIndex, 0);
        }
    }
}
