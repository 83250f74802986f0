import QtQuick
import QtQuick.Controls
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// The list of saved filters: a click or Enter loads one; each has a small menu to rename, remove or duplicate it.
Popup {
    id: popup

    // A FilterManagerButtonsController.
    property var controller: null
    readonly property var loader: controller?.loadFilterController ?? null

    function show() {
        loader.refreshFilterList();
        open();
    }

    function choose(row: int) {
        const name = list.textAt(row);
        close();
        loader.selectFilter(name);
    }

    function openMenu(row: int, item: Item, byKey: bool) {
        list.currentIndex = row;
        loader.refreshMenuModel(list.textAt(row));
        if (byKey)
            menu.openByKey(item, item.width - Metrics.rowHeight, item.height);
        else
            menu.popup(item, 0, item.height);
    }

    objectName: "savedFiltersPopup"
    focus: true
    margins: 4
    padding: 0
    onOpened: list.forceActiveFocus(Qt.PopupFocusReason)
    onClosed: parent.forceActiveFocus(Qt.PopupFocusReason)

    PlainListView {
        id: list

        anchors.fill: parent
        objectName: "savedFilters"
        textRole: "filterName"
        implicitWidth: Math.min(240, popup.parent.Window.width - 2 * popup.margins)
        implicitHeight: Math.max(1, Math.min(10, count)) * Metrics.rowHeight + 4
        model: popup.loader?.filterListModel ?? null
        onActivated: row => popup.choose(row)
        onClicked: row => popup.choose(row)
        Keys.onPressed: event => {
            if ((event.key === Qt.Key_Menu || event.key === Qt.Key_Right) && currentIndex >= 0) {
                event.accepted = true;
                popup.openMenu(currentIndex, view.currentItem, true);
            }
        }

        // qmllint disable unqualified
        accessory: IconButton {
            id: more

            objectName: "filterMenuButton"
            focusPolicy: Qt.NoFocus
            mark: "more"
            text: qsTr("Rename, remove or duplicate")
            onClicked: popup.openMenu(parent.model.index, more, false)
        }
        // qmllint enable unqualified
    }

    ModelMenu {
        id: menu

        objectName: "filterMenu"
        model: popup.loader?.menuModel ?? null
    }
    Connections {
        target: popup.loader

        function onOpenPopup() {
            popup.show();
        }
    }
    Connections {
        target: popup.controller

        // Somebody else may change the store, too.
        function onNumFiltersChanged() {
            if (popup.opened)
                popup.loader.refreshFilterList();
        }
    }
    Connections {
        target: popup.loader?.filterListModel ?? null

        function onModelReset() {
            if (list.count === 0)
                popup.close();
        }
    }
}
