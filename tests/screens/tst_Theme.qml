import QtQuick 2.9
import QtTest 1.1
import "qrc:/qml/Singletons"

TestCase {
    name: "Theme"

    function cleanup() {
        Theme.setTheme("");
    }

    function test_tokens_data() {
        return [
            { "tag": "default", "window1": Qt.lighter("#d0dbe8", 1.1), "buttonFrame": Qt.darker("#d0dbe8", 1.7),
              "pressedButton1": "#aeb6bc", "selectedEdText": "#000000", "disabledText": "#80000000",
              "deluxeLabel2": Qt.lighter("#0050a0", 1.2), "arrow": "arrow-down.png", "opacity": 0.5, "dark": false },
            { "tag": "dark", "window1": "#474b4d", "buttonFrame": "#111618",
              "pressedButton1": "#54595b", "selectedEdText": "#cccccc", "disabledText": "#777777",
              "deluxeLabel2": "#0f1315", "arrow": "arrow-down-white.png", "opacity": 0.5, "dark": true },
            { "tag": "highContrastBlack", "window1": "#000000", "buttonFrame": "#ffffff",
              "pressedButton1": "#000000", "selectedEdText": "#000000", "disabledText": "#00ff00",
              "deluxeLabel2": "#000000", "arrow": "arrow-down-white.png", "opacity": 1, "dark": true },
            { "tag": "highContrastWhite", "window1": "#ffffff", "buttonFrame": "#000000",
              "pressedButton1": "#ffffff", "selectedEdText": "#ffffff", "disabledText": "#800000",
              "deluxeLabel2": "#ffffff", "arrow": "arrow-down.png", "opacity": 1, "dark": false }
        ];
    }

    function test_tokens(data) {
        // From a theme whose tokens are all others, so that a forgotten one shows.
        Theme.setTheme(data.dark ? "highContrastWhite" : "highContrastBlack");
        Theme.setTheme(data.tag);
        compare(Theme.window1, Qt.lighter(data.window1, 1));
        compare(Theme.toolBar1, Theme.window1);
        compare(Theme.buttonFrame, Qt.lighter(data.buttonFrame, 1));
        compare(Theme.pressedButton1, Qt.lighter(data.pressedButton1, 1));
        compare(Theme.selectedEdText, Qt.lighter(data.selectedEdText, 1));
        verify(Qt.colorEqual(Theme.disabledText, data.disabledText));
        compare(Theme.deluxeLabel2, Qt.lighter(data.deluxeLabel2, 1));
        compare(Theme.arrowDownImage, data.arrow);
        compare(Theme.disabledOpacity, data.opacity);
        compare(Theme.isDarkMode, data.dark);
        fuzzyCompare(Theme.highlight.a, 0x80 / 255, 0.001);
    }

    function test_unknownNameIsDefault() {
        Theme.setTheme("dark");
        Theme.setTheme("none of them");
        verify(Qt.colorEqual(Theme.window2, "#d0dbe8"));
        compare(Theme.isDarkMode, false);
    }

    Text {
        id: sample
        text: "Sample"
        font.pixelSize: 40
    }

    // A font that isn't in the resources leaves its loader without a name, and
    // a role that isn't told apart is drawn as another one.
    function test_fonts() {
        var roles = [
            { "family": Theme.fixedFont, "weight": Font.Normal },
            { "family": Theme.normalFont, "weight": Font.Normal },
            { "family": Theme.mediumFont, "weight": Theme.mediumWeight },
            { "family": Theme.heavyFont, "weight": Font.Bold }
        ];
        var widths = [];
        for (var i = 0; i < roles.length; ++i) {
            verify(roles[i].family !== "", "font " + i);
            sample.font.family = roles[i].family;
            sample.font.weight = roles[i].weight;
            verify(widths.indexOf(sample.implicitWidth) < 0, "font " + i + " is drawn as an earlier one");
            widths.push(sample.implicitWidth);
        }
        compare(Theme.symbolFontName, Theme.heavyFont);
    }
}
