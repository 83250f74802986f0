import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// Offers the properties: a search over their tree, and the favourites. Down goes from the search to the rows below it;
// Enter in the search chooses the property that is marked.
Popup {
    id: control

    // A FilterPopupController.
    property var controller: null
    // Where it was opened.
    property Item asker: null
    // What becomes of the property.
    property var taken: null
    property int pinChanges: 0
    readonly property var pinned: controller?.pinnedPropertiesModel ?? null
    readonly property bool searching: search.text.trim() !== ""

    function ask(item: Item, take: var) {
        asker = item;
        taken = take;
        const at = item.mapToItem(parent, 0, item.height + 2);
        x = at.x;
        y = at.y;
        pinned.loadPinnedProperties();
        search.clear();
        favourites.currentIndex = -1;
        tree.rows.openAll();
        markFirst();
        open();
    }

    function take(propertyIndex: int) {
        if (propertyIndex < 0)
            return;
        const wanted = taken;
        taken = null;
        close();
        wanted?.(propertyIndex);
    }

    function propertyAt(row: int): int {
        const rows = tree.rows;
        return row >= 0 ? rows.data(rows.index(row, 0), 258) ?? -1 : -1;
    }

    // A group opens or closes.
    function takeCurrent() {
        const row = tree.currentRow;
        if (row >= 0 && propertyAt(row) < 0)
            tree.rows.setOpen(row, !tree.isOpen(row));
        else
            take(propertyAt(row));
    }

    // Enter goes on to what the search found.
    function markFirst() {
        let row = search.text.trim() === "" ? -1 : 0;
        while (row >= 0 && row < tree.count && propertyAt(row) < 0)
            ++row;
        tree.currentIndex = tree.rows.indexAt(row);
    }

    function enterRows() {
        if (favourites.visible) {
            favourites.currentIndex = 0;
            favourites.forceActiveFocus(Qt.TabFocusReason);
        } else {
            enterTree();
        }
    }

    function enterTree() {
        tree.forceActiveFocus(Qt.TabFocusReason);
        if (tree.currentRow < 0)
            tree.moveTo(0);
    }

    objectName: "propertyPopup"
    focus: true
    margins: 4
    padding: Metrics.padding
    // The chip went.
    onAskerChanged: {
        if (!asker)
            close();
    }
    width: Math.min(280, parent.Window.width - 2 * margins)
    height: Math.min(400, parent.Window.height - 2 * margins)
    onOpened: search.forceActiveFocus(Qt.PopupFocusReason)
    onClosed: asker?.forceActiveFocus(Qt.PopupFocusReason)

    ColumnLayout {
        anchors.fill: parent
        spacing: Metrics.spacing
        Keys.onPressed: event => {
            event.accepted = event.key === Qt.Key_D && event.modifiers === Qt.ControlModifier;
            if (event.accepted)
                control.pinned.togglePinned(favourites.activeFocus ? favourites.propertyAt(favourites.currentIndex)
                    : control.propertyAt(tree.currentRow));
        }

        SearchField {
            id: search

            objectName: "propertySearch"
            Layout.fillWidth: true
            placeholderText: qsTr("Search properties")
            onTextChanged: {
                control.controller.searchString = text;
                tree.rows.openAll();
                control.markFirst();
            }
            Keys.onDownPressed: control.enterRows()
            Keys.onReturnPressed: control.take(control.propertyAt(tree.currentRow))
            Keys.onEnterPressed: control.take(control.propertyAt(tree.currentRow))
        }
        Label {
            visible: favourites.visible
            text: qsTr("Favourites")
            font.pointSize: Metrics.smallFontSize
            color: Colors.textSecondary
        }
        FilterFavourites {
            id: favourites

            Layout.fillWidth: true
            visible: count > 0 && !control.searching
            model: control.pinned
            onChosen: propertyIndex => control.take(propertyIndex)
            Keys.onDownPressed: event => {
                event.accepted = currentIndex >= count - 1;
                if (event.accepted)
                    control.enterTree();
            }
        }
        Label {
            visible: favourites.visible
            text: qsTr("All properties")
            font.pointSize: Metrics.smallFontSize
            color: Colors.textSecondary
        }
        ModelTreeView {
            id: tree

            objectName: "propertyTree"
            Component.onCompleted: view.activeFocusOnTab = true
            Layout.fillWidth: true
            Layout.fillHeight: true
            model: control.controller?.sortFilterSelectModel ?? null
            accessory: pin
            onClicked: control.takeCurrent()
            Keys.onReturnPressed: control.takeCurrent()
            Keys.onEnterPressed: control.takeCurrent()

            PlaceholderMessage {
                anchors.centerIn: parent
                width: parent.width - 2 * Metrics.margin
                visible: tree.count === 0
                text: control.searching ? qsTr("No property has this in its name or group.") : qsTr("There are no properties.")
            }
        }
    }

    // qmllint disable unqualified
    Component {
        id: pin

        IconButton {
            readonly property int propertyIndex: parent?.model?.propertyIndex ?? -1
            readonly property bool isPinned: control.pinChanges >= 0 && propertyIndex >= 0 && control.pinned.isPinned(propertyIndex)

            objectName: "pin"
            visible: propertyIndex >= 0
            focusPolicy: Qt.NoFocus
            mark: isPinned && hovered ? "unpin" : "pin"
            markColor: isPinned ? Colors.accentStrong : hovered ? Colors.text : Colors.textDisabled
            text: isPinned ? qsTr("Remove from the favourites (Ctrl+D)") : qsTr("Add to the favourites (Ctrl+D)")
            opacity: isPinned || parent?.hovered ? 1 : 0
            onClicked: control.pinned.togglePinned(propertyIndex)
        }
    }
    // qmllint enable unqualified
    // The view hears of the reset first.
    Timer {
        id: later

        interval: 0
        onTriggered: tree.rows.openAll()
    }
    Connections {
        target: tree.rows

        function onModelReset() {
            later.restart();
        }
    }
    Connections {
        target: control.pinned

        function onPinStateChanged() {
            ++control.pinChanges;
        }
        function onModelReset() {
            ++control.pinChanges;
        }
    }
}
