import QtQuick 2.9
import QtQuick.Controls 1.4
import Morvi.kess 1.0

/// An entry for a language of the screens, checked while it is the one of the next start.
MenuItem {
    id: root

    property string language: ""
    property ApplicationWindow window: null

    checkable: true
    checked: InterfaceLanguage.chosen === language

    onTriggered: {
        // The toolkit has toggled it.
        checked = Qt.binding(function() { return InterfaceLanguage.chosen === language; });
        var notice = InterfaceLanguage.choose(language);
        if (notice !== "")
            window.showMessage(notice);
    }
}
