import QtQuick
import QtQuick.Controls
import Tandolin
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// A table for mouse and keyboard whose model is a SortFilterSelectModel.
//
// A cell shows the "display" role and, if there is one, the icon of "decoration", aligned as its column says. For a type of
// cell (the column's header role "whatsThis") a page may give:
// - in "delegates" a component that stands for the text and fills the cell. Its root declares
//   "required property ModelTableCell cell", which gives row, column, display, isSelected, isHovered, isPreFocusCell, info
//   (of the column: title, type, alignment, id, source), textColor, every role as cell.model.<name>, and
//   commit(value, role) to write. It may have a function activate(), for Enter, F2 and the space bar on the cell. What it
//   doesn't take of the mouse is the table's, for the selection.
// - in "editors" a component with "required property var value" and the signals accepted(var value) and cancelled(). It
//   covers the cell while it is edited, and its parent tells row and column. It may have a function finish(), which
//   accepts what it shows: another edit begins. The value goes to the model by setData().
// A cell that is editable and has no delegate is edited as a text.
//
// Keys: Up, Down, Home, End and page keys select rows, with Shift they extend the selection, Control+A selects all. Left and
// Right begin the pre-focus of single cells, which the arrows then move; Enter or F2 works on the pre-focused cell, the
// space bar toggles it, Escape ends it. Without a pre-focus Enter activates the row and F2 edits it. Typed letters find a
// row.
// The columns are saved when the user has changed them and when the table goes.
FocusScope {
    id: control

    property var model: null
    property var delegates: ({})
    property var editors: ({})
    readonly property alias columns: columns
    readonly property alias header: header
    readonly property alias view: view
    readonly property alias pointer: pointer
    readonly property bool isPointed: pointer.hoveredCell.y >= 0
    readonly property alias isEditing: editor.isOpen

    readonly property color stripe: Qt.alpha(Colors.text, Colors.dark ? 0.025 : 0.022)
    readonly property color gridLine: Qt.alpha(Colors.separator, Colors.dark ? 0.45 : 0.6)

    // The far end of a selection that is being extended by keys; -1: none.
    property int farRow: -1
    // Where the first column begins in the content of the view, which guesses this after a jump.
    property real columnOrigin: 0

    // The user chose a cell that isn't edited, by Enter or a double click.
    signal cellActivated(int row, int column)
    // The right mouse button or the menu key; the point is one of this control. Row and column are -1 beside the cells.
    signal contextMenuRequested(int row, int column, point position)

    implicitWidth: 4 * Metrics.fieldWidth
    implicitHeight: 10 * Metrics.rowHeight

    Accessible.role: Accessible.Table

    function commit(row: int, column: int, value: var, role: int): bool {
        return model?.setData(model.index(row, column), value, role) ?? false;
    }

    function currentCell(): point {
        const current = model?.selectionModel.currentIndex;
        return current?.valid ? Qt.point(Math.max(0, current.column), current.row) : Qt.point(-1, -1);
    }

    function cellItem(row: int, column: int): ModelTableCell {
        return view.itemAtCell(Qt.point(column, row)) as ModelTableCell;
    }

    function moveTo(row: int) {
        farRow = -1;
        typed.stop();
        endPreFocus();
        if (view.rows > 0)
            model.leftClickSelection(Math.min(view.rows - 1, Math.max(0, row)), Math.max(0, currentCell().x));
    }

    function extendTo(row: int) {
        typed.stop();
        endPreFocus();
        if (view.rows <= 0)
            return;
        const far = Math.min(view.rows - 1, Math.max(0, row));
        model.shiftSelection(far, Math.max(0, currentCell().x));
        view.positionViewAtRow(far, TableView.Contain);
        farRow = far;
    }

    function stepRow(down: bool) {
        farRow = -1;
        typed.stop();
        if (model.hasPreFocus())
            down ? model.increasePreFocusIndexRow() : model.decreasePreFocusIndexRow();
        else if (currentCell().y < 0)
            moveTo(0);
        else
            down ? model.selectNextRow() : model.selectPreviousRow();
    }

    function stepColumn(right: bool) {
        typed.stop();
        if (currentCell().y < 0)
            stepRow(true);
        else if (right)
            model.increasePreFocusIndexColumn();
        else
            model.decreasePreFocusIndexColumn();
    }

    // Also from an editor, which keeps its own scope.
    function takeFocus() {
        keyboard.forceActiveFocus();
    }

    function stopTyping() {
        typed.stop();
    }

    function endPreFocus() {
        if (model?.hasPreFocus())
            model.unsetPreFocus();
    }

    // Whether the cell can be edited.
    function edit(row: int, column: int): bool {
        const index = model.index(row, column);
        const type = columns.list[column]?.type;
        if (!(model.flags(index) & Qt.ItemIsEditable) || (type in delegates && !(type in editors)))
            return false;
        // The row may be new.
        if (!view.isRowLoaded(row))
            view.forceLayout();
        view.positionViewAtRow(row, TableView.Contain);
        view.positionViewAtColumn(column, TableView.Contain);
        editor.open(row, column, model.data(index, Qt.EditRole), editors[type] ?? null);
        return true;
    }

    // What Enter does.
    function activate(row: int, column: int) {
        const cell = cellItem(row, column);
        if (cell?.content?.activate)
            cell.content.activate();
        else if (!edit(row, column))
            cellActivated(row, column);
    }

    function toggle(row: int, column: int) {
        const index = model.index(row, column);
        if (model.flags(index) & Qt.ItemIsUserCheckable)
            commit(row, column, model.data(index, Qt.CheckStateRole) ? Qt.Unchecked : Qt.Checked, Qt.CheckStateRole);
        else
            cellItem(row, column)?.content?.activate?.();
    }

    function enter(isEdit: bool) {
        const current = currentCell();
        if (model.hasPreFocus())
            model.requestActiveFocusOnPrefocusedCell();
        else if (isEdit)
            model.setBeginEditIndex(current.y);
        else
            cellActivated(current.y, current.x);
    }

    // As wide as the title and what is seen of the column want it.
    function fitColumn(column: int) {
        let width = header.wantedWidth(column);
        for (let row = view.topRow; row >= 0 && row <= view.bottomRow; ++row)
            width = Math.max(width, cellItem(row, column)?.implicitWidth ?? 0);
        columns.resize(column, Math.ceil(width));
        columns.save();
    }

    // Typed letters look here: in the column of names, or in the first one that shows texts.
    function letterColumn(): int {
        const named = columns.list.findIndex(column => column.id !== "" && column.id === model.defaultEditableColumnId);
        return Math.max(0, named >= 0 ? named : columns.list.findIndex(column => !(column.type in delegates)));
    }

    function find(letters: string) {
        if (view.rows <= 0)
            return;
        const from = currentCell().y + (letters.length > 1 ? 0 : 1);
        const start = model.index(Math.max(0, from) % view.rows, letterColumn());
        const hits = model.match(start, Qt.DisplayRole, letters, 1, Qt.MatchStartsWith | Qt.MatchWrap);
        if (hits.length > 0)
            model.leftClickSelection(hits[0].row, Math.max(0, currentCell().x));
    }

    function askForMenu(cell: point) {
        const y = pointer.y + (cell.y + 1) * Metrics.rowHeight - view.contentY;
        contextMenuRequested(cell.y, cell.x, Qt.point(Metrics.rowHeight, y));
    }

    function noteOrigin() {
        const item = view.itemAtCell(Qt.point(view.leftColumn, view.topRow));
        columnOrigin = item ? item.x - columns.edges[view.leftColumn] : 0;
    }

    Keys.onPressed: event => {
        if (!model || editor.isOpen)
            return;
        const page = Math.max(1, Math.floor(view.height / Metrics.rowHeight) - 1);
        const isExtending = event.modifiers & Qt.ShiftModifier;
        const current = currentCell();
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

    Item {
        id: keyboard

        focus: true
    }
    ModelTableColumns {
        id: columns

        model: control.model
        room: view.width
        onLaidOut: layout.restart()
    }
    // Not while the view is at work on its layout.
    Timer {
        id: layout

        interval: 0
        onTriggered: {
            view.forceLayout();
            control.noteOrigin();
        }
    }
    TypedLetters {
        id: typed

        onWanted: letters => control.find(letters)
    }
    CellMarks {
        id: marks

        model: control.model
        onMarked: (role, row, column) => {
            if (role === "isPreFocusCell") {
                view.positionViewAtRow(row, TableView.Contain);
                view.positionViewAtColumn(column, TableView.Contain);
            } else if (role === "isFocusCell") {
                control.activate(row, column);
            } else if (control.edit(row, column)) {
                // For the same row to be edited again.
                control.model.setBeginEditIndex(-1);
            }
        }
    }
    Connections {
        target: control.model?.selectionModel ?? null

        function onCurrentChanged(current) {
            control.farRow = -1;
            if (current.row >= 0)
                view.positionViewAtRow(current.row, TableView.Contain);
        }
    }

    Rectangle {
        anchors.fill: parent
        radius: Metrics.radius
        color: control.enabled ? Colors.input : "transparent"
        border.width: control.activeFocus ? 2 : 1
        border.color: control.activeFocus ? Colors.focus : control.enabled ? Colors.outline : Colors.separator
    }
    ModelTableHeader {
        id: header

        x: 2
        y: 2
        width: control.width - 4
        table: control
        columns: columns
        origin: control.columnOrigin - view.contentX
    }
    ModelTablePointer {
        id: pointer

        // Both bars show when either's room makes the other one needed.
        readonly property real room: control.height - 4 - header.height
        readonly property real wantedHeight: view.rows * Metrics.rowHeight
        readonly property bool isWide: columns.leastTotal > control.width - 4 - (wantedHeight > room ? down.width : 0)
        readonly property bool isHigh: wantedHeight > room - (isWide ? across.height : 0)

        table: control
        x: 2
        y: 2 + header.height
        width: control.width - 4 - (isHigh ? down.width : 0)
        height: room - (isWide ? across.height : 0)

        TableView {
            id: view

            anchors.fill: parent
            clip: true
            keyNavigationEnabled: false
            pointerNavigationEnabled: false
            animate: false
            reuseItems: true
            boundsBehavior: Flickable.StopAtBounds
            pixelAligned: true
            model: control.model
            contentWidth: columns.total
            contentHeight: pointer.wantedHeight
            columnWidthProvider: column => columns.widths[column] ?? 100
            ScrollBar.vertical: down
            ScrollBar.horizontal: across
            // qmllint disable unqualified
            delegate: ModelTableCell {
                table: control
            }
            // qmllint enable unqualified
            onContentXChanged: control.noteOrigin()
            onLeftColumnChanged: control.noteOrigin()
            onContentYChanged: pointer.noteHover()

            ModelTableEditor {
                id: editor

                table: control
                x: columns.edges[column] + control.columnOrigin
                y: row * Metrics.rowHeight
                width: columns.widths[column] ?? 0
                height: Metrics.rowHeight
            }
        }
    }
    ScrollBar {
        id: down

        x: control.width - 2 - width
        y: pointer.y
        height: pointer.height
        orientation: Qt.Vertical
        policy: pointer.isHigh ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff
    }
    ScrollBar {
        id: across

        x: 2
        y: control.height - 2 - height
        width: pointer.width
        orientation: Qt.Horizontal
        policy: pointer.isWide ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff
    }
}
