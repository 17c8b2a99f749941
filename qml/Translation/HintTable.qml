import QtQuick 2.9
import Morvi.kess 1.0
import "../QtControls"
import "../Singletons"

/// The hints of both languages side by side. One cell has the keys and the
/// editor over it.
FocusScope {
    id: root

    property HintTableModel hints: null
    property int currentId: -1
    property bool second: true
    readonly property alias count: list.count

    function commit() {
        editor.commit();
    }

    function takeKeys() {
        editor.takeKeys();
    }

    function goTo(row, isSecond) {
        editor.commit();
        list.currentIndex = Math.max(0, Math.min(row, list.count - 1));
        second = isSecond;
        showCurrent();
        editor.takeKeys();
    }

    function goToId(id) {
        var row = hints.rowOf(id);
        if (row >= 0 && id !== currentId)
            goTo(row, second);
        return row >= 0;
    }

    /// Goes to what is to be done in that row.
    function goToWork(row) {
        if (row >= 0)
            goTo(row, hints.isSecondToDo(row));
    }

    function goToNextWork() {
        editor.commit();
        goToWork(hints.nextToDo(list.currentIndex));
    }

    function goToCell(step) {
        var cell = 2 * list.currentIndex + (second ? 1 : 0) + step;
        if (cell >= 0 && cell < 2 * list.count)
            goTo(Math.floor(cell / 2), cell % 2 === 1);
    }

    function goToPage(step) {
        var rows = Math.max(1, Math.floor(list.height / Math.max(28, list.currentItem ? list.currentItem.height : 0)) - 1);
        goTo(list.currentIndex + step * rows, second);
    }

    function showRow() {
        list.positionViewAtIndex(list.currentIndex, ListView.Contain);
    }

    function showCurrent() {
        currentId = hints.idOf(list.currentIndex);
        showRow();
        editor.begin(currentId, second, hints.hint(currentId, second));
    }

    // The rows are in line with the document.
    function follow() {
        var row = hints.rowOf(currentId);
        if (row >= 0) {
            list.currentIndex = row;
            editor.follow(hints.hint(currentId, second));
            return;
        }
        list.currentIndex = Math.min(Math.max(0, list.currentIndex), list.count - 1);
        showCurrent();
    }

    // Until somebody types, the row as a whole is in view.
    function followCursor() {
        if (!editor.entered)
            return;
        var top = editor.y + editor.cursorRectangle.y;
        var bottom = top + editor.cursorRectangle.height + 8;
        if (top < list.contentY)
            list.contentY = top;
        else if (bottom > list.contentY + list.height)
            list.contentY = bottom - list.height;
    }

    QtObject {
        id: columnWidths

        readonly property real name: Math.min(180, list.width * 0.2)
        readonly property real mark: 76
        readonly property real hint: Math.floor((list.width - name - mark) / 2)
    }

    Row {
        id: header
        x: 1
        height: 24

        Repeater {
            model: [
                { "text": qsTranslate("TranslationWindow", "Item"), "width": columnWidths.name },
                { "text": TutorialManager.locale, "width": columnWidths.hint },
                { "text": TutorialManager.locale2, "width": columnWidths.hint }
            ]

            Label {
                width: modelData.width
                height: header.height
                leftPadding: 4
                text: modelData.text
            }
        }
    }

    Rectangle {
        anchors {
            top: header.bottom
            left: parent.left
            right: parent.right
            bottom: parent.bottom
        }
        color: Theme.normalBack1
        border.width: 1
        border.color: Theme.controlFrame

        // The list is what the view scrolls, so that only the rows in view exist.
        ScrollView {
            anchors.fill: parent
            anchors.margins: 1
            focus: true

            ListView {
                id: list
                objectName: "hintRows"
                Accessible.role: Accessible.List
                Accessible.name: qsTranslate("TranslationWindow", "Hints")
                clip: true
                focus: true
                model: root.hints
                highlightFollowsCurrentItem: false
                // The heights of the rows come after their widths.
                onWidthChanged: Qt.callLater(root.showRow)
                onHeightChanged: Qt.callLater(root.showRow)

                delegate: HintTableRow {
                    width: list.width
                    row: index
                    columns: columnWidths
                    editorHeight: ListView.isCurrentItem ? editor.contentHeight : 0
                    onPressed: {
                        root.goTo(index, second);
                        editor.enterAt(x, y);
                    }
                }

                HintEditor {
                    id: editor
                    accessibleName: "#" + itemId + " " + (second ? TutorialManager.locale2 : TutorialManager.locale)
                    parent: list.contentItem
                    z: 2
                    x: columnWidths.name + (second ? columnWidths.hint : 0)
                    y: list.currentItem ? list.currentItem.y : 0
                    width: columnWidths.hint
                    height: list.currentItem ? list.currentItem.height : 0
                    visible: list.currentItem !== null
                    onEdited: root.hints.setHint(itemId, second, newText)
                    onCellRequested: root.goToCell(step)
                    onRowRequested: root.goTo(list.currentIndex + step, root.second)
                    onPageRequested: root.goToPage(step)
                    onEdgeRequested: root.goTo(last ? list.count - 1 : 0, root.second)
                    onCursorRectangleChanged: root.followCursor()
                }
            }
        }

        Text {
            anchors.centerIn: parent
            visible: list.count === 0
            text: qsTranslate("TranslationWindow", "No hint is shown.")
        }
    }

    Component.onCompleted: hints.followed.connect(follow)
}
