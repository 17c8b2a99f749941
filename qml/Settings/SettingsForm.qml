import QtQuick 2.9
import QtQuick.Window 2.2
import Morvi.kess 1.0
import "../Controls"
import "../QtControls"
import "../Singletons"

/// The settings of the selected item. What the user changes goes to the
/// properties of the screen, which shows them here again. Its texts belong to
/// the screen.
GroupBox {
    id: root

    property var screen: null
    property alias windowKeyField: windowKeyInput
    property alias xField: xInput
    property alias yField: yInput
    property alias iconField: iconCombo
    property alias commandField: commandInput
    property alias arrowBox: arrowCheck
    property alias hintField: hintInput
    property alias hint2Field: hint2Input
    property alias conditionField: conditionInput
    property alias jumpButton: jumpPopup
    property alias jumpNoButton: jumpNoPopup

    // The hint takes the height that the other rows leave.
    readonly property real otherRowsHeight: windowRow.height + positionRow.height + conditionRow.height + iconRow.height
                                            + arrowCheck.height + jumpRow.height + hint2Row.height

    /// Hands over what is being typed.
    function commit() {
        [windowKeyInput, xInput, yInput, commandInput, conditionInput].forEach(function(field) {
            field.commit();
        });
    }

    // The place to scroll to, so that what begins there is in sight.
    function following(position, extent, begin, length) {
        if (begin < position)
            return Math.max(0, begin - 4);
        return Math.max(position, Math.min(begin, begin + length + 4 - extent));
    }

    function scrollTo(item) {
        var area = view.flickableItem;
        var place = item.mapToItem(column, 0, 0);
        area.contentX = following(area.contentX, view.viewport.width, place.x, item.width);
        area.contentY = following(area.contentY, view.viewport.height, place.y, item.height);
    }

    // A field that the Tab key leads to comes into view.
    function followFocus() {
        var item = Window.activeFocusItem;
        if (item && isField(item))
            scrollTo(item);
    }

    function isField(item) {
        for (var ancestor = item; ancestor; ancestor = ancestor.parent) {
            if (ancestor === column)
                return true;
        }
        return false;
    }

    readonly property var focusItem: Window.activeFocusItem
    onFocusItemChanged: followFocus()

    ScrollView {
        id: view
        anchors.fill: parent
        implicitWidth: 1
        implicitHeight: 1
        focus: true

        Column {
            id: column
            spacing: 4

            Row {
                id: windowRow
                spacing: 4

                FieldLabel {
                    text: qsTranslate("TutorialSettingItem", "Track:")
                }

                LineField {
                    id: windowKeyInput
                    objectName: "windowKey"
                    width: 256
                    onEdited: root.screen.windowKey = newText
                }

                Button {
                    objectName: "takeWindowKey"
                    anchors.verticalCenter: parent.verticalCenter
                    width: 40
                    text: qsTranslate("TutorialSettingItem", "<=")
                    enabled: root.screen.windowKey !== TutorialManager.currentWindowKey
                    onClicked: root.screen.takeWindowKey(TutorialManager.currentWindowKey)
                }

                FieldLabel {
                    text: TutorialManager.currentWindowKey
                }
            }

            Row {
                id: positionRow
                spacing: 4

                FieldLabel {
                    text: qsTranslate("TutorialSettingItem", "X:")
                }

                NumberField {
                    id: xInput
                    objectName: "x"
                    onEdited: root.screen.px = newValue
                }

                FieldLabel {
                    text: qsTranslate("TutorialSettingItem", "Y:")
                }

                NumberField {
                    id: yInput
                    objectName: "y"
                    onEdited: root.screen.py = newValue
                }
            }

            Row {
                id: iconRow
                spacing: 4

                FieldLabel {
                    text: qsTranslate("TutorialSettingItem", "Icon:")
                }

                NameIdComboBox {
                    id: iconCombo

                    property bool completed: false

                    function show(name) {
                        itemId = nameList.indexOf(name);
                        showItemId();
                    }

                    objectName: "icon"
                    anchors.verticalCenter: parent.verticalCenter
                    width: 100
                    nameList: ["click", "doubleClick", "rightClick", "eye", "wait", "keyboard"]
                    idList: [0, 1, 2, 3, 4, 5]
                    onItemIdChanged: {
                        if (completed && !root.screen.updating)
                            root.screen.icon = itemId >= 0 ? nameList[idList.indexOf(itemId)] : "";
                    }
                    Component.onCompleted: completed = true

                    WheelGuard {}
                }

                FieldLabel {
                    text: qsTranslate("TutorialSettingItem", "Command:")
                }

                LineField {
                    id: commandInput
                    objectName: "command"
                    width: 384
                    onEdited: root.screen.command = newText
                }
            }

            CheckBox {
                id: arrowCheck
                objectName: "showArrow"
                text: qsTranslate("TutorialSettingItem", "Show arrow")
                enabled: root.screen.px !== -9999 || root.screen.py !== -9999
                onCheckedChanged: root.screen.showArrow = checked
            }

            Row {
                id: hintRow
                spacing: 4

                HintLabel {
                    id: hintLabel
                    objectName: "hintLabel"
                    text: qsTranslate("TutorialSettingItem", "Hint:")
                    missing: root.screen.isMissing(root.screen.hint)
                }

                HintField {
                    id: hintInput
                    objectName: "hint"
                    width: Math.max(512, root.width - hintLabel.width - 64)
                    height: Math.max(192, root.height - 64 - root.otherRowsHeight)
                    onEdited: root.screen.hint = newText
                }
            }

            Row {
                id: hint2Row
                spacing: 4

                HintLabel {
                    id: hint2Label
                    objectName: "hint2Label"
                    missing: root.screen.isMissing(root.screen.hint2)
                    text: root.screen.localeList[root.screen.localeList.indexOf(TutorialManager.locale2)] || ""
                }

                HintField {
                    id: hint2Input
                    objectName: "hint2"
                    width: Math.max(512, root.width - hint2Label.width - 64)
                    height: 192
                    onEdited: root.screen.hint2 = newText
                }
            }

            Row {
                id: conditionRow
                spacing: 4

                FieldLabel {
                    text: qsTranslate("TutorialSettingItem", "Condition:")
                }

                LineField {
                    id: conditionInput
                    objectName: "condition"
                    width: 416
                    onEdited: root.screen.condition = newText
                }
            }

            Row {
                id: jumpRow
                spacing: 4

                FieldLabel {
                    text: qsTranslate("TutorialSettingItem", "Jump:")
                }

                JumpButton {
                    id: jumpPopup
                    objectName: "jump"
                    screen: root.screen
                    onChosen: root.screen.jump = id
                }

                FieldLabel {
                    text: qsTranslate("TutorialSettingItem", "Jump(No):")
                }

                JumpButton {
                    id: jumpNoPopup
                    objectName: "jumpNo"
                    screen: root.screen
                    onChosen: root.screen.jumpNo = id
                }
            }
        }
    }
}
