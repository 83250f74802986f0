import QtQml.Models
import QtQuick
import QtQuick.Controls
import Tandolin.API.Core.Themes

// A list of texts for mouse and keyboard: arrows, Home, End and page keys move, typed letters find the next row that begins
// with them, Enter or a double click activates. The model is anything that a ListView takes; texts come from textRole, or
// from "modelData" when that is empty.
FocusScope {
    id: control

    property alias model: list.model
    property alias delegate: list.delegate
    property alias currentIndex: list.currentIndex
    readonly property alias count: list.count
    readonly property alias view: list
    property string textRole
    // What stands at the right of a row; its parent has the row as "model" and "hovered".
    property Component accessory: null

    signal clicked(int row)
    // The user chose the row by Enter or a double click.
    signal activated(int row)

    implicitWidth: 2 * Metrics.fieldWidth
    implicitHeight: 8 * Metrics.rowHeight

    function textAt(row: int): string {
        const value = rows.items.get(row).model[textRole || "modelData"];
        return value === undefined ? "" : String(value);
    }

    function find(letters) {
        const wanted = letters.toLowerCase();
        const first = Math.max(0, wanted.length > 1 ? currentIndex : currentIndex + 1);
        for (let step = 0; step < count; ++step) {
            const row = (first + step) % count;
            if (textAt(row).toLowerCase().startsWith(wanted)) {
                currentIndex = row;
                return;
            }
        }
    }

    function moveTo(row: int) {
        typed.stop();
        if (count > 0)
            currentIndex = Math.min(count - 1, Math.max(0, row));
    }

    Keys.onPressed: event => {
        const page = Math.max(1, Math.floor(list.height / Metrics.rowHeight) - 1);
        event.accepted = true;
        if (event.key === Qt.Key_Up)
            moveTo(currentIndex - 1);
        else if (event.key === Qt.Key_Down)
            moveTo(currentIndex + 1);
        else if (event.key === Qt.Key_Home)
            moveTo(0);
        else if (event.key === Qt.Key_End)
            moveTo(count - 1);
        else if (event.key === Qt.Key_PageUp)
            moveTo(currentIndex - page);
        else if (event.key === Qt.Key_PageDown)
            moveTo(currentIndex + page);
        else if ((event.key === Qt.Key_Return || event.key === Qt.Key_Enter) && currentIndex >= 0)
            activated(currentIndex);
        else
            event.accepted = typed.take(event);
    }

    TypedLetters {
        id: typed

        onWanted: letters => control.find(letters)
    }

    // Reads the texts of rows that the view hasn't made.
    DelegateModel {
        id: rows

        model: list.model
        // Never made, but without it a reset goes unheard.
        delegate: Item {}
    }

    Rectangle {
        anchors.fill: parent
        radius: Metrics.radius
        color: control.enabled ? Colors.input : "transparent"
        border.width: control.activeFocus ? 2 : 1
        border.color: control.activeFocus ? Colors.focus : control.enabled ? Colors.outline : Colors.separator
    }
    ListView {
        id: list

        anchors.fill: parent
        anchors.margins: 2
        clip: true
        focus: true
        keyNavigationEnabled: false
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
        highlightResizeDuration: 0
        // qmllint disable unqualified
        delegate: ItemDelegate {
            id: row

            required property var model
            required property int index

            width: ListView.view.width
            rightPadding: Metrics.padding + extra.width + extra.anchors.rightMargin
            // A "&" in the data is no mnemonic.
            text: String(model[control.textRole || "modelData"] ?? "").replace(/&/g, "&&")
            highlighted: ListView.isCurrentItem
            focusPolicy: Qt.NoFocus
            onPressed: {
                control.forceActiveFocus();
                control.currentIndex = index;
            }
            onClicked: control.clicked(index)
            onDoubleClicked: control.activated(index)

            Loader {
                id: extra

                readonly property var model: row.model
                readonly property bool hovered: row.hovered || row.highlighted

                anchors.right: parent.right
                anchors.rightMargin: bar.size < 1 ? bar.width : 0
                anchors.verticalCenter: parent.verticalCenter
                sourceComponent: control.accessory
            }
        }
        // qmllint enable unqualified
        ScrollBar.vertical: ScrollBar {
            id: bar
        }
    }
}
