.pragma library

// The controls reach into private members of the toolkit here and nowhere
// else. A release that lacks one leaves the control as the toolkit made it,
// and one line in the log says so.

function isSliderWheelArea(item) {
    return item.verticalValue !== undefined && item.horizontalValue !== undefined;
}

function isSpinBoxWheelArea(item) {
    return item.hoverEnabled !== undefined && item.onWheel !== undefined
        && item.objectName !== "mouseUp" && item.objectName !== "mouseDown";
}

/// Binds `enabled` of the control's wheel areas to its active focus.
function wheelOnlyWithFocus(control, name, isWheelArea) {
    var found = false;
    for (var i = 0; i < control.children.length; ++i) {
        var item = control.children[i];
        if (!isWheelArea(item))
            continue;
        found = true;
        item.enabled = Qt.binding(function() { return control.activeFocus; });
    }
    if (!found)
        console.warn(name + ": no wheel area in this toolkit, the wheel works without the focus");
    return found;
}

/// Lays the arrows of a spin box side by side at its right end. Gives false,
/// with nothing changed, where the toolkit has no such members.
function layArrowsSideBySide(control) {
    var style = control.__style;
    var panel = control.__panel;
    if (!style || !style.padding || style.padding.right === undefined
            || !panel || panel.upRect === undefined || panel.downRect === undefined)
        return false;
    style.padding.right = Qt.binding(function() { return 2 * control.height; });
    panel.upRect = Qt.binding(function() {
        return Qt.rect(control.width - control.height, 0, control.height, control.height);
    });
    panel.downRect = Qt.binding(function() {
        return Qt.rect(control.width - 2 * control.height, 0, control.height, control.height);
    });
    return true;
}

/// Opens a menu at that place of an item, where the toolkit lets it, else at the mouse.
function popupAt(menu, item, place) {
    if (!menu.__popup) {
        menu.popup();
        return;
    }
    var point = item.mapToItem(null, place.x, place.y);
    menu.__popup(Qt.rect(point.x, point.y, 0, 0), 0);
}

/// Opens the list of a combo box, where the toolkit lets it.
function openList(control) {
    if (control.__popup && control.__popup.toggleShow)
        control.__popup.toggleShow();
}

/// Presses a button as the space bar does, which opens its menu.
function pressByKey(control) {
    if (control.__behavior && control.__behavior.keyPressed !== undefined)
        control.__behavior.keyPressed = true;
}
