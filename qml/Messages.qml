import QtQuick 2.9
import "Controls"

/// The message boxes that the screens open. Each kind has one permanent box,
/// which a second call takes over; a call with a container makes a box of its
/// own there, which goes when it is hidden.
Item {
    id: root

    function show(permanent, component, container, properties) {
        var dialog = container ? component.createObject(container) : permanent;
        for (var name in properties)
            dialog[name] = properties[name];
        dialog.open();
    }

    function showMessage(caption, callback, container) {
        show(informationDialog, informationComponent, container, { "text": caption, "callback": callback || null });
    }

    function alert(message, callback, container) {
        show(alertDialog, alertComponent, container, { "text": message, "callback": callback || null });
    }

    function confirm(title, text, callback, container) {
        show(confirmDialog, confirmComponent, container, {
            "title": title === null ? qsTranslate("main", "Tutorial Editor") : title,
            "text": text,
            "callback": callback || null
        });
    }

    InformationDialog {
        id: informationDialog
    }

    AlertDialog {
        id: alertDialog
    }

    ConfirmDialog {
        id: confirmDialog
    }

    Component {
        id: informationComponent

        InformationDialog {
            id: ownInformation
            onVisibleChanged: if (!visible) ownInformation.destroy()
        }
    }

    Component {
        id: alertComponent

        AlertDialog {
            id: ownAlert
            onVisibleChanged: if (!visible) ownAlert.destroy()
        }
    }

    Component {
        id: confirmComponent

        ConfirmDialog {
            id: ownConfirm
            onVisibleChanged: if (!visible) ownConfirm.destroy()
        }
    }
}
