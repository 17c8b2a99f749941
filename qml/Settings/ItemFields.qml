import QtQuick 2.9
import Morvi.kess 1.0

/// The fields of the selected item, as a copy that the screen shows. A change
/// of one is an undo step, unless `updating` tells that it comes from the
/// document. Every change goes on into the control of that field.
Item {
    id: root

    property TutorialItemListModel model: null
    /// The SettingsForm with the controls.
    property Item form: null
    /// The fields are being filled from the document: no edit is recorded.
    property bool updating: false
    property int itemId: -1
    readonly property bool folder: itemId < 0 || isFolder(itemId)
    property int px: 0
    property int py: 0
    property string windowKey: ""
    property string hint: ""
    property string hint2: ""
    property string condition: ""
    property int jump: -1
    property int jumpNo: -1
    property string icon: ""
    property string command: ""
    property bool showArrow: false
    /// How many texts were refused so far.
    property int refusals: 0

    function isFolder(id) {
        return model.data(model.getModelIndexById(id), model.RoleFolder) === true;
    }

    /// Whether learners see the key of the hint and no text.
    function isMissing(text) {
        return !folder && (text === "" || text === "#" + itemId);
    }

    /// Hands over what is being typed, so that it is neither lost nor given to
    /// the item that is selected next.
    function commitEditing() {
        Qt.inputMethod.commit();
        if (!updating && !folder && model.exists(itemId))
            form.commit();
    }

    function record(sequence, key, value) {
        UndoRedo.beginSequence(sequence);
        model.setValue(itemId, key, value);
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
    function recordText(sequence, key, text) {
        if (!refuses(text)) {
            record(sequence, key, text);
            return;
        }
        updating = true;
        root[key] = model.getValue(itemId, key);
        updating = false;
    }

    // The capture of the cursor sets both coordinates in a sequence of its own.
    function recordPosition(sequence, key, value) {
        if (UndoRedo.inTransaction())
            model.setValue(itemId, key, value);
        else
            record(sequence, key, value);
        updateIndicator();
    }

    // The host editor shows the edited step at once.
    function recordAndRestart(sequence, key, value) {
        record(sequence, key, value);
        restart();
    }

    function updateIndicator() {
        TutorialManager.updateIndicatorXyWindowKey(px, py, windowKey);
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

    /// Shows the item. What is being typed in a field is gone.
    function readItem() {
        readFields();
        updating = true;
        showFields();
        updating = false;
    }

    function fieldOf(key) {
        return itemId < 0 ? model.getDefaultValue(key) : model.getValue(itemId, key);
    }

    /// Reads what the document says. A field whose value has not changed keeps
    /// what is being typed.
    function readFields() {
        updating = true;
        px = fieldOf("x");
        py = fieldOf("y");
        windowKey = fieldOf("windowKey");
        hint = fieldOf("hint");
        hint2 = fieldOf("hint2");
        condition = fieldOf("condition");
        jump = fieldOf("jump");
        jumpNo = fieldOf("jumpNo");
        icon = fieldOf("icon");
        command = fieldOf("command");
        showArrow = fieldOf("showArrow");
        updating = false;
    }

    // A control may show something else than a property that hasn't changed.
    function showFields() {
        form.xField.show(px);
        form.yField.show(py);
        form.windowKeyField.show(windowKey);
        form.hintField.show(hint);
        form.hint2Field.show(hint2);
        form.conditionField.show(condition);
        form.jumpButton.itemId = jump;
        form.jumpNoButton.itemId = jumpNo;
        form.iconField.show(icon);
        form.commandField.show(command);
        form.arrowBox.checked = showArrow;
    }

    onPxChanged: {
        if (!updating)
            recordPosition("setX", "x", px);
        form.xField.show(px);
    }
    onPyChanged: {
        if (!updating)
            recordPosition("setY", "y", py);
        form.yField.show(py);
    }
    onWindowKeyChanged: {
        if (!updating) {
            recordText("setWindowKey", "windowKey", windowKey);
            updateIndicator();
        }
        form.windowKeyField.show(windowKey);
    }
    onHintChanged: {
        if (!updating)
            record("setHint", "hint", hint);
        form.hintField.show(hint);
    }
    onHint2Changed: {
        if (!updating)
            record("setHint2", "hint2", hint2);
        form.hint2Field.show(hint2);
    }
    onConditionChanged: {
        if (!updating)
            recordText("setCondition", "condition", condition);
        form.conditionField.show(condition);
    }
    onJumpChanged: {
        if (!updating)
            recordAndRestart("setJump", "jump", jump);
        form.jumpButton.itemId = jump;
    }
    onJumpNoChanged: {
        if (!updating)
            recordAndRestart("setJumpNo", "jumpNo", jumpNo);
        form.jumpNoButton.itemId = jumpNo;
    }
    onIconChanged: {
        if (!updating)
            recordAndRestart("setIcon", "icon", icon);
        form.iconField.show(icon);
    }
    onCommandChanged: {
        if (!updating)
            recordText("setCommand", "command", command);
        form.commandField.show(command);
    }
    onShowArrowChanged: {
        if (!updating)
            recordAndRestart("setShowArrow", "showArrow", showArrow);
        form.arrowBox.checked = showArrow;
    }
}
