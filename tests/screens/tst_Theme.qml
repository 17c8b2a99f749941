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
}
