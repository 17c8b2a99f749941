import QtQuick 2.9
import QtTest 1.1
import "qrc:/qml/Singletons"

TestCase {
    name: "Theme"

    function cleanup() {
        Theme.setTheme("");
    }

    // From a theme whose tokens are others, so that a forgotten one shows.
    function test_setTheme_data() {
        return [
            { "tag": "dark", "before": "highContrastWhite", "window1": "#474b4d", "disabledText": "#777777",
              "arrow": "arrow-down-white.png", "dark": true },
            { "tag": "highContrastWhite", "before": "dark", "window1": "#ffffff", "disabledText": "#800000",
              "arrow": "arrow-down.png", "dark": false },
            { "tag": "none of them", "before": "dark", "window1": Qt.lighter("#d0dbe8", 1.1),
              "disabledText": "#80000000", "arrow": "arrow-down.png", "dark": false }
        ];
    }

    function test_setTheme(data) {
        Theme.setTheme(data.before);
        Theme.setTheme(data.tag);
        verify(Qt.colorEqual(Theme.window1, data.window1));
        verify(Qt.colorEqual(Theme.disabledText, data.disabledText));
        compare(Theme.arrowDownImage, data.arrow);
        compare(Theme.isDarkMode, data.dark);
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
    }
}
