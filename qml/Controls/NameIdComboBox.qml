import QtQuick 2.9
import "../QtControls"

/// Shows names and yields ids; -9999 stands for no selection.
ComboBox {
    id: root

    property var nameList: []
    property var idList: []
    property int itemId: -9999
    /// While set, a choice of the user is put back.
    property bool updating: false
    // The toolkit selects the first entry at completion.
    property bool completed: false

    function getIdByIndex(index) {
        return index >= 0 && index < idList.length ? idList[index] : -9999;
    }

    function getIndexById(id) {
        return idList.indexOf(id);
    }

    function showItemId() {
        currentIndex = getIndexById(itemId);
    }

    enabled: idList.length > 0
    model: nameList

    onItemIdChanged: {
        if (idList.length > 0)
            showItemId();
    }
    onIdListChanged: showItemId()
    onCurrentIndexChanged: {
        if (!completed)
            return;
        if (updating)
            showItemId();
        else if (idList.length > 0)
            itemId = getIdByIndex(currentIndex);
    }
    Component.onCompleted: {
        showItemId();
        completed = true;
    }
}
