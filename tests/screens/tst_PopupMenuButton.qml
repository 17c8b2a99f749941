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
        id: test
        name: "PopupMenuButton"
        when: windowShown

        readonly property string tree: JSON.stringify({ "children": [
            { "id": -1, "name": "(Next)" },
            { "separator": true },
            { "id": 1, "name": "Folder", "folder": true, "children": [
                { "id": 2, "name": "Same", "enabled": false },
                { "id": 3, "name": "Same" }
            ] },
            { "id": 4, "name": "A \"quoted\" \\ name\u2028 'with' ${all}" }
        ] })

        function test_menuFollowsTree() {
            var button = createTemporaryObject(buttonComponent, scene, { "itemTreeJson": tree, "itemId": 3 });
            compare(button.text, "Same");
            compare(button.lastPopup.items[2].title, "Folder");
            compare(button.lastPopup.items[2].items[0].enabled, false);
            compare(button.lastPopup.items[3].text, "A \"quoted\" \\ name\u2028 'with' ${all}");
            button.lastPopup.items[0].trigger();
            compare(button.itemId, -1);
            compare(button.text, "(Next)");
            button.lastPopup.items[2].items[1].trigger();
            compare(button.itemId, 3);
        }

        function test_badTexts_data() {
            return [
                { "tag": "empty keeps menu and enabled", "text": "", "enabled": true, "items": 4 },
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
