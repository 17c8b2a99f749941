import QtQuick 2.9
import Morvi.kess 1.0
import "../Controls"
import "../QtControls"
import "../Singletons"

/// The controls that the host editor tracks. Its texts belong to the dialog.
Column {
    id: root

    property TutorialRaisedHandListModel trackingModel: null

    signal controlChosen(string controlName)

    // The view scrolls the list as a whole.
    function showCurrent() {
        var area = scrollView.flickableItem;
        var row = list.currentItem;
        if (row)
            area.contentY = Math.max(row.y + row.height - scrollView.viewport.height, Math.min(area.contentY, row.y));
    }

    spacing: 4

    ListKeys {
        id: listKeys
        list: list
        area: scrollView.flickableItem
        onChosen: list.currentItem.doubleClicked()
    }

    RectangleLabel {
        id: caption
        width: parent.width
        height: contentHeight + 2
        text: qsTranslate("TutorialEventDialog", "Tracking control")
    }

    ScrollView {
        id: scrollView
        width: parent.width
        height: parent.height - caption.height - root.spacing

        Rectangle {
            width: list.width
            height: list.height
            color: Theme.outsideArea
            border.width: list.activeFocus ? 1 : 0
            border.color: Theme.focusFrame

            ListView {
                id: list
                objectName: "trackingList"
                Accessible.role: Accessible.List
                Accessible.name: caption.text
                activeFocusOnTab: true
                focus: true
                // As wide as the widest row, so that the view can scroll to its end.
                width: Math.max(scrollView.width - 16, contentItem.childrenRect.width)
                height: contentHeight
                currentIndex: -1
                model: root.trackingModel

                delegate: RichRow {
                    view: list
                    row: index
                    width: Math.max(content.width + 2, scrollView.width - 16)
                    height: content.height + 2
                    content.x: 1
                    content.y: 1
                    text: name
                    plainText: name
                    onDoubleClicked: root.controlChosen(name)
                }

                onCurrentItemChanged: if (activeFocus) root.showCurrent()

                Keys.forwardTo: listKeys
            }
        }
    }
}
