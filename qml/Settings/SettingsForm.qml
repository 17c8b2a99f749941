import QtQuick 2.9
import QtQuick.Window 2.2
import Morvi.kess 1.0
import "../Controls"
import "../QtControls"
import "../Singletons"

/// The settings of the selected item. The control of a field has the field's key
/// as its objectName, and the screen joins the two. Its texts belong to the
/// screen.
GroupBox {
    id: root

    property ItemFields screen: null
    /// The names of the languages that a hint is in.
    property var localeList: []
    /// What the jump menus offer.
    property string jumpTreeJson: ""

    /// A jump menu is about to open.
    signal jumpTreeRequested()

    // The hint takes the height that the other rows leave.
    readonly property real otherRowsHeight: windowRow.height + positionRow.height + conditionRow.height + iconRow.height
                                            + arrowCheck.height + jumpRow.height + hint2Row.height
    readonly property Item focusItem: Window.activeFocusItem

    /// The control of that name.
    function controlOf(key) {
        for (var i = 0; i < column.children.length; ++i) {
            var row = column.children[i];
            if (row.objectName === key)
                return row;
            for (var j = 0; j < row.children.length; ++j) {
                if (row.children[j].objectName === key)
                    return row.children[j];
            }
        }
        return null;
    }

    /// Shows the names of the jumps anew.
    function showJumpNames() {
        jumpButton.showName();
        jumpNoButton.showName();
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
        if (focusItem && isField(focusItem))
            scrollTo(focusItem);
    }

    function isField(item) {
        for (var ancestor = item; ancestor; ancestor = ancestor.parent) {
            if (ancestor === column)
                return true;
        }
        return false;
    }

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
                    id: windowLabel
                    text: qsTranslate("TutorialSettingItem", "Track:")
                }

                LineField {
                    objectName: "windowKey"
                    accessibleName: windowLabel.text
                    width: 256
                }

                Button {
                    objectName: "takeWindowKey"
                    Accessible.name: qsTranslate("TutorialSettingItem", "Track this window") + ": "
                                     + TutorialManager.currentWindowKey
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
                    id: xLabel
                    text: qsTranslate("TutorialSettingItem", "X:")
                }

                NumberField {
                    objectName: "x"
                    accessibleName: xLabel.text
                }

                FieldLabel {
                    id: yLabel
                    text: qsTranslate("TutorialSettingItem", "Y:")
                }

                NumberField {
                    objectName: "y"
                    accessibleName: yLabel.text
                }
            }

            Row {
                id: iconRow
                spacing: 4

                FieldLabel {
                    id: iconLabel
                    text: qsTranslate("TutorialSettingItem", "Icon:")
                }

                IconField {
                    objectName: "icon"
                    accessibleName: iconLabel.text
                    anchors.verticalCenter: parent.verticalCenter
                    width: 100
                    screen: root.screen
                }

                FieldLabel {
                    id: commandLabel
                    text: qsTranslate("TutorialSettingItem", "Command:")
                }

                LineField {
                    objectName: "command"
                    accessibleName: commandLabel.text
                    width: 384
                }
            }

            FlagField {
                id: arrowCheck
                objectName: "showArrow"
                text: qsTranslate("TutorialSettingItem", "Show arrow")
                enabled: root.screen.px !== -9999 || root.screen.py !== -9999
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
                    objectName: "hint"
                    accessibleName: hintLabel.text
                    accessibleDescription: hintLabel.missingText
                    width: Math.max(512, root.width - hintLabel.width - 64)
                    height: Math.max(192, root.height - 64 - root.otherRowsHeight)
                }
            }

            Row {
                id: hint2Row
                spacing: 4

                HintLabel {
                    id: hint2Label
                    objectName: "hint2Label"
                    missing: root.screen.isMissing(root.screen.hint2)
                    text: root.localeList[root.localeList.indexOf(TutorialManager.locale2)] || ""
                }

                HintField {
                    objectName: "hint2"
                    accessibleName: hintLabel.text + " " + hint2Label.text
                    accessibleDescription: hint2Label.missingText
                    width: Math.max(512, root.width - hint2Label.width - 64)
                    height: 192
                }
            }

            Row {
                id: conditionRow
                spacing: 4

                FieldLabel {
                    id: conditionLabel
                    text: qsTranslate("TutorialSettingItem", "Condition:")
                }

                LineField {
                    objectName: "condition"
                    accessibleName: conditionLabel.text
                    width: 416
                }
            }

            Row {
                id: jumpRow
                spacing: 4

                FieldLabel {
                    id: jumpLabel
                    text: qsTranslate("TutorialSettingItem", "Jump:")
                }

                JumpButton {
                    id: jumpButton
                    objectName: "jump"
                    accessibleName: jumpLabel.text
                    screen: root.screen
                    itemTreeJson: root.jumpTreeJson
                    onTreeRequested: root.jumpTreeRequested()
                }

                FieldLabel {
                    id: jumpNoLabel
                    text: qsTranslate("TutorialSettingItem", "Jump(No):")
                }

                JumpButton {
                    id: jumpNoButton
                    objectName: "jumpNo"
                    accessibleName: jumpNoLabel.text
                    screen: root.screen
                    itemTreeJson: root.jumpTreeJson
                    onTreeRequested: root.jumpTreeRequested()
                }
            }
        }
    }
}
