import QtQuick 2.9
import Morvi.kess 1.0

/// The fields of the selected item, as a copy that the screen shows. A change
/// of one is an undo step, unless `updating` tells that it comes from the
/// document. Every change goes on into the control of that field.
Item {
    id: root

    /// A new field is a row here, and a control of that name in the form.
    readonly property list<ItemField> fields: [
        ItemNumber { id: xField; key: "x"; undoName: "setX"; joinsSequence: true; movesIndicator: true },
        ItemNumber { id: yField; key: "y"; undoName: "setY"; joinsSequence: true; movesIndicator: true },
        ItemText { id: windowField; key: "windowKey"; undoName: "setWindowKey"; refusable: true; movesIndicator: true },
        ItemText { id: hintField; key: "hint"; undoName: "setHint" },
        ItemText { id: hint2Field; key: "hint2"; undoName: "setHint2" },
        ItemText { id: conditionField; key: "condition"; undoName: "setCondition"; refusable: true },
        ItemNumber { id: jumpField; key: "jump"; undoName: "setJump"; restarts: true; value: -1 },
        ItemNumber { id: jumpNoField; key: "jumpNo"; undoName: "setJumpNo"; restarts: true; value: -1 },
        ItemText { id: iconField; key: "icon"; undoName: "setIcon"; restarts: true },
        ItemText { id: commandField; key: "command"; undoName: "setCommand"; refusable: true },
        ItemFlag { id: showArrowField; key: "showArrow"; undoName: "setShowArrow"; restarts: true }
    ]

    property alias px: xField.value
    property alias py: yField.value
    property alias windowKey: windowField.value
    property alias hint: hintField.value
    property alias hint2: hint2Field.value
    property alias condition: conditionField.value
    property alias jump: jumpField.value
    property alias jumpNo: jumpNoField.value
    property alias icon: iconField.value
    property alias command: commandField.value
    property alias showArrow: showArrowField.value

    property TutorialItemListModel model: null
    /// The SettingsForm with the controls. It knows this type, and two types
    /// that know each other are a circle to QML.
    property Item form: null
    /// The fields are being filled from the document: no edit is recorded.
    property bool updating: false
    property int itemId: -1
    readonly property bool folder: itemId < 0 || isFolder(itemId)
    /// How many texts were refused so far.
    property int refusals: 0

    function isFolder(id) {
        return model.data(model.getModelIndexById(id), model.RoleFolder) === true;
    }

    /// Whether learners see the key of the hint and no text.
    function isMissing(text) {
        return !folder && (text === "" || text === "#" + itemId);
    }

    function forEachField(visit) {
        for (var i = 0; i < fields.length; ++i)
            visit(fields[i]);
    }

    function joinControl(field) {
        field.control = form.controlOf(field.key);
        field.control.edited.connect(function(value) { field.value = value; });
        field.changed.connect(function() { takeChange(field); });
        if (field.control.pendingChanged) {
            field.control.pendingChanged.connect(function() {
                TutorialManager.recovery.setTyped(itemId, field.key, field.control.pending);
            });
        }
    }

    function takeChange(field) {
        if (!updating)
            recordEdit(field);
        field.control.show(field.value);
    }

    function recordEdit(field) {
        if (field.refusable && refuses(field.value))
            takeBack(field);
        else if (field.joinsSequence && UndoRedo.inTransaction())
            model.setValue(itemId, field.key, field.value);
        else
            record(field);
        if (field.movesIndicator)
            TutorialManager.updateIndicatorXyWindowKey(px, py, windowKey);
        if (field.restarts)
            restart();
    }

    function record(field) {
        UndoRedo.beginSequence(field.undoName);
        model.setValue(itemId, field.key, field.value);
        UndoRedo.endSequence();
    }

    /// Tells why the text can't be saved, if so.
    function refuses(text) {
        var refusal = model.getRefusal(text);
        if (refusal === "")
            return false;
        ++refusals;
        model.errorOccurred(refusal);
        return true;
    }

    // A refused text gives way to the one before.
    function takeBack(field) {
        updating = true;
        field.value = model.getValue(itemId, field.key);
        updating = false;
    }

    /// Hands over what is being typed, so that it is neither lost nor given to
    /// the item that is selected next.
    function commitEditing() {
        Gui.finishComposition();
        if (updating || folder || !model.exists(itemId))
            return;
        forEachField(function(field) {
            if (field.control.commit)
                field.control.commit();
        });
    }

    function restart() {
        TutorialManager.startFromId(itemId);
    }

    function takeWindowKey(key) {
        commitEditing();
        windowKey = key;
        restart();
    }

    /// Puts the item to where the mouse is, relative to the tracked window.
    function captureCursor() {
        commitEditing();
        var winXy = TutorialManager.getXy(windowKey);
        var mouseXy = TutorialManager.getCursorPos();
        UndoRedo.beginSequence("setXy");
        px = mouseXy.x - winXy.x;
        py = mouseXy.y - winXy.y;
        UndoRedo.endSequence();
        restart();
    }

    /// Reads what the document says. A field whose value has not changed keeps
    /// what is being typed.
    function readFields() {
        updating = true;
        forEachField(function(field) {
            field.value = itemId < 0 ? model.getDefaultValue(field.key) : model.getValue(itemId, field.key);
        });
        updating = false;
    }

    /// Shows the item. What is being typed in a field is gone.
    function readItem() {
        readFields();
        updating = true;
        // A control may show something else than a value that hasn't changed.
        forEachField(function(field) { field.control.show(field.value); });
        updating = false;
    }

    onFormChanged: if (form) forEachField(joinControl)
}
