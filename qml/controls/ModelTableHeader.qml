import QtQuick
import QtQuick.Controls
import Tandolin.API.Core.Themes

// The header of a ModelTable. A click sorts, a drag moves the column, a drag of a border resizes, a double click on it fits
// the column to what is seen of it, the right button opens the menu of the columns.
Item {
    id: control

    required property var table
    required property var columns
    // Where the first column begins.
    property real origin: 0

    // The column that is being moved, and the gap between columns that it would go to; -1: none.
    property int dragged: -1
    property int gap: -1
    property real dragX: 0

    implicitHeight: Metrics.rowHeight + 2
    clip: true

    function wantedWidth(column: int): real {
        return (titles.itemAt(column) as ModelTableHeaderCell)?.wantedWidth ?? 0;
    }

    function columnAt(x: real): int {
        const edges = columns.edges;
        for (let column = 0; column < edges.length - 1; ++column) {
            if (x - origin < edges[column + 1])
                return column;
        }
        return edges.length - 2;
    }

    function drag(column: int, x: real) {
        dragged = column;
        dragX = x;
        const over = columnAt(x);
        const middle = (columns.edges[over] + columns.edges[over + 1]) / 2;
        gap = over + (x - origin > middle ? 1 : 0);
        if (gap === column + 1)
            gap = column;
    }

    // At the ends of the view it goes on.
    function scroll() {
        const view = table.view;
        const step = dragX < Metrics.rowHeight ? -8 : dragX > view.width - Metrics.rowHeight ? 8 : 0;
        const last = Math.max(0, columns.total - view.width);
        const x = Math.max(0, Math.min(last, view.contentX - table.columnOrigin + step)) + table.columnOrigin;
        if (x === view.contentX)
            return;
        view.contentX = x;
        drag(dragged, dragX);
    }

    function drop() {
        const from = dragged;
        const to = gap > from ? gap - 1 : gap;
        endDrag();
        if (from === to)
            return;
        columns.model.moveColumn(from, to);
        columns.save();
    }

    function endDrag() {
        dragged = -1;
        gap = -1;
    }

    function openMenu(column: int, x: real, y: real) {
        menu.column = column;
        menu.popup(control, x, y);
    }

    Timer {
        interval: 16
        repeat: true
        running: control.dragged >= 0
        onTriggered: control.scroll()
    }
    ModelTableMenu {
        id: menu

        objectName: "columnMenu"
        model: control.columns.model?.columnModel ?? null
        onTriggered: control.columns.save()
    }
    Rectangle {
        anchors.fill: parent
        color: Colors.ribbon

        TapHandler {
            acceptedButtons: Qt.RightButton
            onTapped: control.openMenu(-1, point.position.x, point.position.y)
        }
    }
    Item {
        id: strip

        x: control.origin
        height: parent.height

        Repeater {
            id: titles

            model: control.columns.list
            // qmllint disable unqualified
            delegate: ModelTableHeaderCell {
                header: control
                x: control.columns.edges[index] ?? 0
                width: control.columns.widths[index] ?? 0
                height: strip.height
            }
            // qmllint enable unqualified
        }
    }
    Rectangle {
        y: parent.height - 1
        width: parent.width
        height: 1
        color: Colors.border
    }
    // What is moved goes with the pointer.
    Rectangle {
        visible: control.dragged >= 0
        x: control.dragX - width / 2
        width: control.columns.widths[control.dragged] ?? 0
        height: parent.height
        radius: Metrics.radius
        opacity: 0.9
        color: Colors.selection
        border.color: Colors.accent

        Label {
            anchors.fill: parent
            anchors.margins: Metrics.padding
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideRight
            text: control.columns.list[control.dragged]?.title ?? ""
        }
    }
}
