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

    function luminance(colour) {
        function part(value) {
            return value <= 0.03928 ? value / 12.92 : Math.pow((value + 0.055) / 1.055, 2.4);
        }
        return 0.2126 * part(colour.r) + 0.7152 * part(colour.g) + 0.0722 * part(colour.b);
    }

    /// From 1 to 21, as the guidelines for readable text reckon it.
    function contrast(text, ground) {
        var one = luminance(text);
        var other = luminance(ground);
        return (Math.max(one, other) + 0.05) / (Math.min(one, other) + 0.05);
    }

    // What stands on what, in the controls. A text that is disabled may be paler.
    function test_textsAreReadable() {
        var grounds = {
            "normalText": ["window1", "window2", "normalBack1", "normalBack2", "toolBar1", "toolBar2", "button1", "button2"],
            "selectedText": ["selectedBack"],
            "selectedEdText": ["selectedEdBack"],
            "hyperLinkText": ["window1", "window2", "normalBack1", "normalBack2"],
            "pressedButtonText": ["hotButton1", "hotButton2"],
            "hotButtonText": ["hotButton1", "hotButton2"],
            "deluxeLabelText": ["deluxeLabel1", "deluxeLabel2"],
            "selectedRowText": ["selectedRow"],
            "renameText": ["renameBack"],
            "menuButtonText": ["menuButton1", "menuButton2", "pressedMenuButton1", "pressedMenuButton2"]
        };
        // The colours of this theme are fixed, and no screen selects it.
        var pale = {
            "dark": ["normalText on button1", "normalText on button2", "selectedText on selectedBack",
                "selectedEdText on selectedEdBack", "hyperLinkText on window1", "hyperLinkText on window2", "hyperLinkText on normalBack2",
                "pressedButtonText on hotButton1", "pressedButtonText on hotButton2",
                "hotButtonText on hotButton1", "hotButtonText on hotButton2"]
        };
        ["", "dark", "highContrastBlack", "highContrastWhite"].forEach(function(name) {
            Theme.setTheme(name);
            var found = [];
            for (var text in grounds) {
                grounds[text].forEach(function(ground) {
                    if (contrast(theme[text], theme[ground]) < 4.5)
                        found.push(text + " on " + ground);
                });
            }
            compare(found, pale[name] || [], name);
        });
    }
}
