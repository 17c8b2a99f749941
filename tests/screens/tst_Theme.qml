import QtQuick 2.9
import QtTest 1.1
import "qrc:/qml/Singletons"

TestCase {
    name: "Theme"

    readonly property Item theme: Theme

    function tokensAfter(before, name) {
        Theme.setTheme(before);
        Theme.setTheme(name);
        var tokens = {};
        for (var token in theme)
            tokens[token] = String(theme[token]);
        return tokens;
    }

    // A token that a theme forgets keeps the value of the theme before.
    function test_everyThemeSetsEveryToken() {
        var dark = { "": false, "dark": true, "highContrastBlack": true, "highContrastWhite": false };
        for (var name in dark) {
            var tokens = tokensAfter("highContrastWhite", name);
            verify(tokens.selectedText);
            compare(tokens, tokensAfter("highContrastBlack", name));
            compare(tokens, tokensAfter("dark", name));
            compare(Theme.isDarkMode, dark[name], name);
            compare(Theme.normalText.hslLightness > Theme.window2.hslLightness, dark[name], name);
        }
    }

    Text {
        id: sample
        text: "Sample"
        font.pixelSize: 40
    }

    // A font that isn't in the resources leaves its loader without a name, and
    // a role that isn't told apart is drawn as another one.
    function test_fonts() {
        var widths = [];
        [[Theme.fixedFont, Font.Normal], [Theme.normalFont, Font.Normal], [Theme.mediumFont, Theme.mediumWeight],
         [Theme.heavyFont, Font.Bold]].forEach(function(role, i) {
            verify(role[0] !== "", "font " + i);
            sample.font.family = role[0];
            sample.font.weight = role[1];
            verify(widths.indexOf(sample.implicitWidth) < 0, "font " + i + " is drawn as an earlier one");
            widths.push(sample.implicitWidth);
        });
    }
}
