import QtQuick 2.9
import QtQuick.Window 2.2

/// A window that is loaded when it is shown for the first time.
Loader {
    id: root

    function show() {
        active = true;
        if (!item.visible || item.visibility === Window.Minimized)
            item.show();
        item.raise();
        item.requestActivate();
    }

    active: false
}
