import QtQuick 2.9
import QtQuick.Dialogs 1.2
import "Controls"

/// The message boxes that the screens open. Each kind has one permanent box,
/// which a second call takes over; a call with a container makes a box of its
/// own there, which goes when it is hidden.
Item {
    id: root

    /// The permanent boxes by kind, made when they are first needed.
    property var boxes: ({})

    function showMessage(caption, callback, container) {
        show("information", informationComponent, container, { "text": caption, "callback": callback || null });
    }

    function alert(message, callback, container) {
        show("alert", alertComponent, container, { "text": message, "callback": callback || null });
    }

    function confirm(title, text, callback, container) {
        show("confirm", confirmComponent, container, {
            "title": title === null ? qsTranslate("main", "Tutorial Editor") : title,
            "text": text,
            "callback": callback || null
        });
    }

    /// As confirm(), with Cancel for a third answer, which is the one below 0.
    function choose(text, callback, container) {
        show("confirm", confirmComponent, container, {
            "text": text,
            "standardButtons": StandardButton.Yes | StandardButton.No | StandardButton.Cancel,
            "callback": callback
        });
    }

    function show(kind, component, container, properties) {
        // What looks like rich text could load files.
        if (properties.text.indexOf("<") >= 0)
            properties.text = "<qt>" + properties.text.replace(/&/g, "&amp;").replace(/</g, "&lt;").replace(/\n/g, "<br>");
        var box = container ? showInContainer(component, container) : permanentBox(kind, component);
        for (var name in properties)
            box[name] = properties[name];
        box.open();
    }

    function showInContainer(component, container) {
        var box = component.createObject(container);
        box.hidden.connect(box.destroy);
        return box;
    }

    // A box that is open doesn't take a new text, so that another one takes
    // its place; who opened it is not called.
    function permanentBox(kind, component) {
        var box = boxes[kind];
        if (box && box.visible) {
            box.callback = null;
            box.destroy();
            box = null;
        }
        if (!box)
            boxes[kind] = box = component.createObject(root);
        return box;
    }

    Component {
        id: informationComponent

        InformationDialog {}
    }

    Component {
        id: alertComponent

        AlertDialog {}
    }

    Component {
        id: confirmComponent

        ConfirmDialog {}
    }
}
