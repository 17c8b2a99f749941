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

        function layer(button, name) {
            return find(button, function(item) { return item.objectName === name; });
        }

        function test_textWidth() {
            var plain = createTemporaryObject(buttonComponent, scene, { "text": "A caption" });
            var text = caption(plain);
            compare(text.width, Math.ceil(text.implicitWidth) + 4);
            verify(!text.truncated);
            verify(plain.width >= text.width);
            var fixedWidth = text.width;
            plain.text = "A caption that is a good deal longer";
            compare(caption(plain).width, fixedWidth);
            verify(caption(plain).truncated);
            Theme.setTheme("dark");
            compare(caption(plain).width, fixedWidth);
            Theme.setTheme("");

            var wide = createTemporaryObject(buttonComponent, scene, { "text": "x", "width": 200 });
            compare(caption(wide).width, 200);
            compare(wide.height, Theme.controlHeight);
        }

        function test_loneIconIsCentred() {
            var button = createTemporaryObject(buttonComponent, scene,
                                               { "width": 80, "iconSource": "qrc:/icon/undo.png" });
            compare(caption(button).width, 0);
            var icon = find(button, function(item) { return item.fillMode !== undefined && String(item.source) === "qrc:/icon/undo.png"; });
            var left = icon.mapToItem(button, 0, 0).x;
            fuzzyCompare(left, (80 - icon.width) / 2, 1);
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
            compare(button.width, 40);
            compare(button.height, 40);
            compare(button.imageSource.toString(), "qrc:/icon/undo.png");
            compare(button.iconSource.toString(), "");
            button.iconSource = "qrc:/icon/redo.png";
            compare(button.imageSource.toString(), "qrc:/icon/redo.png");
            compare(button.iconSource.toString(), "");

            mouseMove(scene, 300, 100);
            verify(!layer(button, "hovered").visible);
            mouseMove(button, 20, 20);
            tryCompare(layer(button, "hovered"), "visible", true);
            verify(!layer(button, "pressed").visible);
            button.checked = true;
            verify(layer(button, "checked").visible);
            mousePress(button, 20, 20);
            verify(layer(button, "pressed").visible);
            verify(!layer(button, "checked").visible);
            mouseRelease(button, 20, 20);
            verify(!layer(button, "pressed").visible);
        }
    }
}
