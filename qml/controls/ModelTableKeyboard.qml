import QtQuick
import Tandolin.API.Core.Themes

// The keys of a ModelTable, which come here while no cell is edited.
Item {
    id: keyboard

    required property var table
    required property var marks
    readonly property var model: table.model
    readonly property var view: table.view

    // The far end of a selection that is being extended by keys; -1: none.
    property int farRow: -1

    function moveTo(row: int) {
        farRow = -1;
        typed.stop();
        endPreFocus();
        if (view.rows > 0)
            model.leftClickSelection(Math.min(view.rows - 1, Math.max(0, row)), Math.max(0, table.currentCell().x));
    }

    function extendTo(row: int) {
        typed.stop();
        endPreFocus();
        if (view.rows <= 0)
            return;
        const far = Math.min(view.rows - 1, Math.max(0, row));
        model.shiftSelection(far, Math.max(0, table.currentCell().x));
        view.positionViewAtRow(far, TableView.Contain);
        farRow = far;
    }

    function stepRow(down: bool) {
        farRow = -1;
        typed.stop();
        if (model.hasPreFocus())
            down ? model.increasePreFocusIndexRow() : model.decreasePreFocusIndexRow();
        else if (table.currentCell().y < 0)
            moveTo(0);
        else
            down ? model.selectNextRow() : model.selectPreviousRow();
    }

    function stepColumn(right: bool) {
        typed.stop();
        if (table.currentCell().y < 0)
            stepRow(true);
        else if (right)
            model.increasePreFocusIndexColumn();
        else
            model.decreasePreFocusIndexColumn();
    }

    function stopTyping() {
        typed.stop();
    }

    function endPreFocus() {
        if (model?.hasPreFocus())
            model.unsetPreFocus();
    }

    function toggle(row: int, column: int) {
        const index = model.index(row, column);
        if (model.flags(index) & Qt.ItemIsUserCheckable)
            table.commit(row, column, model.data(index, Qt.CheckStateRole) ? Qt.Unchecked : Qt.Checked, Qt.CheckStateRole);
        else
            table.cellItem(row, column)?.content?.activate?.();
    }

    function enter(isEdit: bool) {
        const current = table.currentCell();
        if (model.hasPreFocus())
            model.requestActiveFocusOnPrefocusedCell();
        else if (isEdit)
            model.setBeginEditIndex(current.y);
        else
            table.cellActivated(current.y, current.x);
    }

    // Typed letters look here: in the column of names, or in the first one that shows texts.
    function letterColumn(): int {
        const named = table.columns.list.findIndex(column => column.id !== "" && column.id === model.defaultEditableColumnId);
        return Math.max(0, named >= 0 ? named : table.columns.list.findIndex(column => !(column.type in table.delegates)));
    }

    function find(letters: string) {
        if (view.rows <= 0)
            return;
        const from = table.currentCell().y + (letters.length > 1 ? 0 : 1);
        const start = model.index(Math.max(0, from) % view.rows, letterColumn());
        const hits = model.match(start, Qt.DisplayRole, letters, 1, Qt.MatchStartsWith | Qt.MatchWrap);
        if (hits.length > 0)
            model.leftClickSelection(hits[0].row, Math.max(0, table.currentCell().x));
    }

    function askForMenu(cell: point) {
        const y = table.pointer.y + (cell.y + 1) * Metrics.rowHeight - view.contentY;
        table.contextMenuRequested(cell.y, cell.x, Qt.point(Metrics.rowHeight, y));
    }

    focus: true

    Keys.onPressed: event => {
        if (!model)
            return;
        const page = Math.max(1, Math.floor(view.height / Metrics.rowHeight) - 1);
        const isExtending = event.modifiers & Qt.ShiftModifier;
        const current = table.currentCell();
        const from = isExtending && farRow >= 0 ? farRow : current.y;
        const go = row => isExtending ? extendTo(row) : moveTo(row);
        event.accepted = true;
        if (event.key === Qt.Key_Up)
            isExtending ? extendTo(from - 1) : stepRow(false);
        else if (event.key === Qt.Key_Down)
            isExtending ? extendTo(from + 1) : stepRow(true);
        else if (event.key === Qt.Key_Right)
            stepColumn(true);
        else if (event.key === Qt.Key_Left)
            stepColumn(false);
        else if (event.key === Qt.Key_Home)
            go(0);
        else if (event.key === Qt.Key_End)
            go(view.rows - 1);
        else if (event.key === Qt.Key_PageUp)
            go(from - page);
        else if (event.key === Qt.Key_PageDown)
            go(from + page);
        else if (event.matches(StandardKey.SelectAll) && view.rows > 0)
            model.selectAll();
        else if ((event.key === Qt.Key_Return || event.key === Qt.Key_Enter) && current.y >= 0)
            enter(false);
        else if (event.key === Qt.Key_F2 && current.y >= 0)
            enter(true);
        else if (event.key === Qt.Key_Escape && model.hasPreFocus())
            endPreFocus();
        else if (event.key === Qt.Key_Space && marks.preFocus().valid)
            toggle(marks.preFocus().row, marks.preFocus().column);
        else if (event.key === Qt.Key_Menu && current.y >= 0)
            askForMenu(current);
        else
            event.accepted = typed.take(event);
    }

    TypedLetters {
        id: typed

        onWanted: letters => keyboard.find(letters)
    }
}
