import QtQuick 2.9
import Morvi.kess 1.0

/// A window that is loaded when it is shown for the first time.
Loader {
    id: root

    function show() {
        active = true;
        Gui.present(item);
    }

    active: false
}
