import QtQuick 2.9
import QtTest 1.1
import "qrc:/qml/Controls"

Item {
    id: scene

    width: 400
    height: 300

    Component {
        id: buttonComponent

        PopupMenuButton {
            width: 200
        }
    }

    TestCase {
        name: "PopupMenuButton"
        when: windowShown

        readonly property string tree: JSON.stringify({ "children": [
            { "id": -1, "name": "(Next)" },
            { "separator": true },
            { "id": 1, "name": "Here & there", "folder": true, "children": [
                { "id": 2, "name": "Same", "enabled": false },
                { "id": 3, "name": "Same" }
            ] },
            { "id": 4, "name": "A \"quoted\" \\ name\u2028 'with' ${all}" },
            { "id": 5, "name": "Tom & Jerry" }
        ] })

        function makeButton(itemId) {
            return createTemporaryObject(buttonComponent, scene, { "itemTreeJson": tree, "itemId": itemId });
        }

        function test_menuFollowsTree() {
            var button = makeButton(3);
            var menu = button.lastPopup;
            compare(button.text, "Same");
            // Neither an ampersand nor a quote means anything.
            compare(menu.items[2].title, "Here && there");
            compare(menu.items[3].text, "A \"quoted\" \\ name\u2028 'with' ${all}");
            compare(button.getName(5), "Tom & Jerry");
            button.itemId = 5;
            button.clicked.connect(function() { fail("the ampersand is a mnemonic"); });
            keyClick(Qt.Key_Space, Qt.AltModifier);
            compare(menu.items[2].items[0].enabled, false);
            menu.items[0].trigger();
            compare(button.itemId, -1);
            compare(button.text, "(Next)");
            menu.items[2].items[1].trigger();
            compare(button.itemId, 3);
            // What may be chosen changes with each selected step.
            button.itemTreeJson = tree.replace(",\"enabled\":false", "").replace("\"id\":5", "\"enabled\":false,\"id\":5");
            compare(button.lastPopup.items[2].items[0].enabled, true);
            compare(button.lastPopup.items[4].enabled, false);
        }

        function test_opensAtItsItem() {
            var button = makeButton(3);
            var menu = button.lastPopup;
            mouseClick(button);
            tryCompare(menu, "__popupVisible", true);
            compare(menu.__currentIndex, 2);
            keyClick(Qt.Key_Right);
            tryCompare(menu.items[2], "__currentIndex", 1);
            menu.__dismissMenu();
        }
    }
}
