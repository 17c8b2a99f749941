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

        function test_idAndIndex_data() {
            return [
                { "tag": "last", "id": 30, "index": 2 },
                { "tag": "no such id", "id": 11, "index": -1 }
            ];
        }

        function test_idAndIndex(data) {
            var box = createTemporaryObject(boxComponent, scene, { "itemId": data.id });
            compare(box.currentIndex, data.index);
            compare(box.getIdByIndex(data.index), data.index < 0 ? -9999 : data.id);
            box.itemId = 20;
            compare(box.currentIndex, 1);
        }

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
