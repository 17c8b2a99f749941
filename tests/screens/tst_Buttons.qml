import QtQuick 2.9
import QtTest 1.1
import "qrc:/qml/Controls"
import "qrc:/qml/QtControls"
import "qrc:/qml/Singletons"

Item {
    id: scene

    width: 600
    height: 200

    Component {
        id: buttonComponent

        Button {}
    }

    Component {
        id: iconButtonComponent

        IconButton {}
    }

    TestCase {
        id: test
        name: "Buttons"
        when: windowShown

        function find(item, accept) {
            if (accept(item))
                return item;
            for (var i = 0; i < item.children.length; ++i) {
                var found = find(item.children[i], accept);
                if (found)
                    return found;
            }
            return null;
        }

        function caption(button) {
            return find(button, function(item) { return item.elide !== undefined && item.contentWidth !== undefined; });
        }

        function test_textColor_data() {
            return [
                { "tag": "plain", "properties": {}, "color": "#cccccc" },
                { "tag": "disabled before checked",
                  "properties": { "enabled": false, "checkable": true, "checked": true }, "color": "#777777" },
                { "tag": "checked", "theme": "highContrastBlack",
                  "properties": { "checkable": true, "checked": true }, "color": "#000000" }
            ];
        }

        function test_textColor(data) {
            Theme.setTheme(data.theme || "dark");
            data.properties.text = "caption";
            var button = createTemporaryObject(buttonComponent, scene, data.properties);
            verify(Qt.colorEqual(caption(button).color, data.color));
            Theme.setTheme("");
        }

        function test_iconButtonLayers() {
            var button = createTemporaryObject(iconButtonComponent, scene, { "iconSource": "qrc:/icon/undo.png" });
            function layer(name) {
                return find(button, function(item) { return item.objectName === name; });
            }

            mouseMove(scene, 300, 100);
            verify(!layer("hovered").visible);
            mouseMove(button, 20, 20);
            tryCompare(layer("hovered"), "visible", true);
            button.checked = true;
            verify(layer("checked").visible);
            mousePress(button, 20, 20);
            verify(layer("pressed").visible);
            verify(!layer("checked").visible);
            mouseRelease(button, 20, 20);
            verify(!layer("pressed").visible);
        }
    }
}
