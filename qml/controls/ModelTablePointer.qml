import QtQuick
import Tandolin.API.Core.Themes

// The mouse over the cells of a ModelTable, below what the cells take for themselves: clicks select, a drag extends the
// selection.
MouseArea {
    id: pointer

    required property var table
    // Where the pointer is in the view; null: not over it.
    property var hoverPoint: null

    property point hoveredCell: Qt.point(-1, -1)
    property int lastRow: -1

    // Of a point of the view.
    function cellAt(x: real, y: real): point {
        return table.view.cellAtPosition(Qt.point(x + table.view.contentX, y + table.view.contentY));
    }

    function hover() {
        const cell = hoverPoint ? cellAt(hoverPoint.x, hoverPoint.y) : Qt.point(-1, -1);
        if (cell.x === hoveredCell.x && cell.y === hoveredCell.y)
            return;
        if (cell.y >= 0)
            table.model.setHovered(cell.y, cell.x, true);
        else if (hoveredCell.y >= 0)
            table.model?.setHovered(hoveredCell.y, hoveredCell.x, false);
        hoveredCell = cell;
    }

    function select(cell: point, event: var) {
        table.endPreFocus();
        if (event.button === Qt.RightButton)
            table.model.rightClickSelection(cell.y, cell.x);
        else if (event.modifiers & Qt.ShiftModifier)
            table.model.shiftSelection(cell.y, cell.x);
        else if (event.modifiers & Qt.ControlModifier)
            table.model.ctrlSelection(cell.y, cell.x);
        else
            table.model.leftClickSelection(cell.y, cell.x);
    }

    z: -1
    x: table.view.contentX
    y: table.view.contentY
    width: table.view.width
    height: table.view.height
    acceptedButtons: Qt.LeftButton | Qt.RightButton
    preventStealing: true

    onHoverPointChanged: hover()

    onPressed: event => {
        const cell = cellAt(event.x, event.y);
        table.forceActiveFocus();
        table.stopTyping();
        lastRow = event.button === Qt.LeftButton && !(event.modifiers & Qt.ControlModifier) ? cell.y : -1;
        if (cell.y >= 0)
            select(cell, event);
        else
            table.model?.clearSelection();
        table.farRow = cell.y;
    }
    onPositionChanged: event => {
        // A drag beyond the view goes as far as the next row.
        const row = Math.floor((event.y + table.view.contentY) / Metrics.rowHeight);
        if (lastRow < 0 || row === lastRow)
            return;
        lastRow = row;
        table.extendTo(row);
    }
    onReleased: event => {
        const at = mapToItem(table, event.x, event.y);
        const cell = cellAt(event.x, event.y);
        if (event.button === Qt.RightButton && containsMouse)
            table.contextMenuRequested(cell.y, cell.x, at);
    }
    onDoubleClicked: event => {
        const cell = cellAt(event.x, event.y);
        if (event.button === Qt.LeftButton && cell.y >= 0 && !table.edit(cell.y, cell.x))
            table.cellActivated(cell.y, cell.x);
    }
}
