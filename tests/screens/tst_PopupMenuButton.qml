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

    SignalSpy {
        id: clicks
        signalName: "clicked"
    }

    TestCase {
        id: test
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

        function test_menuFollowsTree() {
            var button = createTemporaryObject(buttonComponent, scene, { "itemTreeJson": tree, "itemId": 3 });
            compare(button.text, "Same");
            // An ampersand is no mnemonic.
            compare(button.lastPopup.items[2].title, "Here && there");
            compare(button.lastPopup.items[4].text, "Tom && Jerry");
            compare(button.getName(5), "Tom & Jerry");
            button.itemId = 5;
            clicks.target = button;
            clicks.clear();
            keyClick(Qt.Key_Space, Qt.AltModifier);
            compare(clicks.count, 0);
            compare(button.lastPopup.items[2].items[0].enabled, false);
            compare(button.lastPopup.items[3].text, "A \"quoted\" \\ name\u2028 'with' ${all}");
            button.lastPopup.items[0].trigger();
            compare(button.itemId, -1);
            compare(button.text, "(Next)");
            button.lastPopup.items[2].items[1].trigger();
            compare(button.itemId, 3);
            // What may be chosen changes with each selected step, and the menu is long.
            var menu = button.lastPopup;
            button.itemTreeJson = tree.replace(",\"enabled\":false", "").replace("\"id\":5", "\"enabled\":false,\"id\":5");
            verify(button.lastPopup === menu);
            compare(menu.items[2].items[0].enabled, true);
            compare(menu.items[4].enabled, false);
        }

        function test_opensAtItsItem() {
            var button = createTemporaryObject(buttonComponent, scene, { "itemTreeJson": tree, "itemId": 5 });
            var menu = button.lastPopup;
            [[5, 4], [3, 2], [-1, 0]].forEach(function(row) {
                button.itemId = row[0];
                mouseClick(button);
                tryCompare(menu, "__popupVisible", true);
                compare(menu.__currentIndex, row[1]);
                if (row[0] === 3) {
                    keyClick(Qt.Key_Right);
                    tryCompare(menu.items[2], "__popupVisible", true);
                    tryCompare(menu.items[2], "__currentIndex", 1);
                }
                menu.__dismissMenu();
                tryCompare(menu, "__popupVisible", false);
            });
        }

        function test_badTexts_data() {
            return [
                { "tag": "empty keeps menu and enabled", "text": "", "enabled": true, "items": 5 },
                { "tag": "no items", "text": "{\"children\":[{\"folder\":true,\"name\":\"f\",\"id\":1}]}",
                  "enabled": false, "items": 1 },
                { "tag": "no JSON", "text": "{", "enabled": false }
            ];
        }

        function test_badTexts(data) {
            var button = createTemporaryObject(buttonComponent, scene, { "itemTreeJson": tree, "itemId": 4 });
            button.itemTreeJson = data.text;
            compare(button.exists(4), false);
            compare(button.enabled, data.enabled);
            if (data.items)
                compare(button.lastPopup.items.length, data.items);
        }
    }
}
