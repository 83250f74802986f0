import QtQuick
import QtQuick.Controls
import Tandolin
import Tandolin.API.Core.Themes

// The mouse over the view of a ModelTable: clicks select, a drag extends the selection. Cells tell of what isn't taken by
// their content.
Item {
    id: pointer

    required property var table
    property point hoveredCell: Qt.point(-1, -1)
    // Where a drag has come to; -1: there is none.
    property int dragRow: -1

    function cellAt(at: point): point {
        return table.view.cellAtPosition(Qt.point(at.x + table.view.contentX, at.y + table.view.contentY));
    }

    // To call when the rows move below the pointer, too.
    function noteHover() {
        const cell = hover.hovered ? cellAt(hover.point.position) : Qt.point(-1, -1);
        if (cell.x === hoveredCell.x && cell.y === hoveredCell.y)
            return;
        if (cell.y >= 0)
            table.model.setHovered(cell.y, cell.x, true);
        else if (hoveredCell.y >= 0)
            table.model?.setHovered(hoveredCell.y, hoveredCell.x, false);
        hoveredCell = cell;
    }

    function press(row: int, column: int, event: var) {
        const isLeft = event.button === Qt.LeftButton;
        table.takeFocus();
        table.keyboard.stopTyping();
        table.keyboard.endPreFocus();
        if (!isLeft)
            table.model.rightClickSelection(row, column);
        else if (event.modifiers & Qt.ShiftModifier)
            table.model.shiftSelection(row, column);
        else if (event.modifiers & Qt.ControlModifier)
            table.model.ctrlSelection(row, column);
        else
            table.model.leftClickSelection(row, column);
        table.keyboard.farRow = row;
        dragRow = isLeft && !(event.modifiers & Qt.ControlModifier) ? row : -1;
    }

    function doubleClick(row: int, column: int) {
        dragRow = -1;
        if (!table.edit(row, column))
            table.cellActivated(row, column);
    }

    function askForMenu(row: int, column: int, at: point) {
        table.contextMenuRequested(row, column, mapToItem(table, at.x, at.y));
    }

    HoverHandler {
        id: hover

        onHoveredChanged: pointer.noteHover()
        onPointChanged: pointer.noteHover()
    }
    TapHandler {
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        gesturePolicy: TapHandler.WithinBounds
        onTapped: (eventPoint, button) => {
            if (pointer.cellAt(eventPoint.position).y >= 0)
                return;
            pointer.table.takeFocus();
            pointer.table.model?.clearSelection();
            if (button === Qt.RightButton)
                pointer.askForMenu(-1, -1, eventPoint.position);
        }
    }
    ToolTip {
        readonly property Item cell: pointer.hoveredCell.y >= 0
            ? pointer.table.cellItem(pointer.hoveredCell.y, pointer.hoveredCell.x) : null

        parent: cell ?? pointer
        text: cell?.text ?? ""
        visible: Settings.tooltips && pointer.dragRow < 0 && (cell?.isTruncated ?? false)
    }
    // Sees the drag, also when the cell where it began is gone.
    Item {
        z: 1
        anchors.fill: parent

        PointHandler {
            acceptedButtons: Qt.LeftButton
            onActiveChanged: {
                if (!active)
                    pointer.dragRow = -1;
            }
            onPointChanged: {
                const row = Math.floor((point.position.y + pointer.table.view.contentY) / Metrics.rowHeight);
                if (pointer.dragRow < 0 || row === pointer.dragRow)
                    return;
                pointer.dragRow = Math.max(0, row);
                pointer.table.keyboard.extendTo(row);
            }
        }
    }
}
