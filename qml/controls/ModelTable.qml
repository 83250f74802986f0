import QtQuick
import QtQuick.Controls
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
// A cell that is editable and has no delegate is edited as a text. ModelTableCheck is a delegate for check boxes; a column
// of selection marks has it without being asked.
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
    readonly property alias keyboard: keyboard
    readonly property bool isPointed: pointer.hoveredCell.y >= 0
    readonly property alias isEditing: editor.isOpen

    readonly property color stripe: Qt.alpha(Colors.text, Colors.dark ? 0.025 : 0.022)
    readonly property color gridLine: Qt.alpha(Colors.separator, Colors.dark ? 0.45 : 0.6)

    readonly property Component selectionMark: ModelTableCheck {}

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

    // Also from an editor, which keeps its own scope.
    function takeFocus() {
        keyboard.forceActiveFocus();
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

    // As wide as the title and what is seen of the column want it.
    function fitColumn(column: int) {
        let width = header.wantedWidth(column);
        for (let row = view.topRow; row >= 0 && row <= view.bottomRow; ++row)
            width = Math.max(width, cellItem(row, column)?.implicitWidth ?? 0);
        columns.resize(column, Math.ceil(width));
        columns.save();
    }

    function noteOrigin() {
        const item = view.itemAtCell(Qt.point(view.leftColumn, view.topRow));
        columnOrigin = item ? item.x - columns.edges[view.leftColumn] : 0;
    }

    ModelTableKeyboard {
        id: keyboard

        table: control
        marks: marks
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
    CellMarks {
        id: marks

        model: control.model
        onMarked: (role, row, column) => {
            if (role === "isPreFocusCell") {
                view.positionViewAtRow(row, TableView.Contain);
                view.positionViewAtColumn(column, TableView.Contain);
            } else if (role === "isFocusCell") {
                control.activate(row, column);
            } else {
                control.edit(row, column);
                // For the same row to be edited again.
                control.model.setBeginEditIndex(-1);
            }
        }
    }
    Connections {
        target: control.model ?? null

        function onSourceModelChanged() {
            rebind.restart();
        }
    }
    // The view keeps the numbers of the roles, which differ from source to source.
    Timer {
        id: rebind

        interval: 0
        onTriggered: {
            view.model = null;
            // It looks at its model only now.
            view.forceLayout();
            view.model = Qt.binding(() => control.model);
        }
    }
    Connections {
        target: control.model?.selectionModel ?? null

        function onCurrentChanged(current) {
            keyboard.farRow = -1;
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
    // Where the column that is moved would go.
    Rectangle {
        objectName: "dropLine"
        visible: header.gap >= 0 && header.gap !== header.dragged
        x: header.x + header.origin + (columns.edges[header.gap] ?? 0) - 1
        y: 2
        width: 2
        height: header.height + pointer.height
        color: Colors.accent
    }
}
