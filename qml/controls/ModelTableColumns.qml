import QtQuick

// The columns of a ModelTable: what the model says of each that is shown, how wide it is and where it begins.
Item {
    id: control

    property var model: null
    // The width that columns with a share fill.
    property real room: 0

    // A record for each column: title, picture, type, alignment, selectionColumn, id, source.
    property var list: []
    property var widths: []
    // Where each column begins, and where the last one ends.
    property var edges: [0]
    readonly property real total: edges[edges.length - 1]
    // The least width that all need.
    property real leastTotal: 0
    // The source's column that the table is sorted by; -1: none.
    property int sorted: -1

    readonly property int minimum: 24

    // The widths have changed.
    signal laidOut

    visible: false

    function describe(column: int): var {
        const header = role => model.headerData(column, Qt.Horizontal, role);
        const more = header(Qt.EditRole) ?? {};
        return {
            title: String(header(Qt.DisplayRole) ?? ""),
            picture: String(header(Qt.DecorationRole) ?? ""),
            type: header(Qt.WhatsThisRole) ?? -1,
            alignment: more.textAlignment ?? Qt.AlignCenter,
            selectionColumn: more.selectionColumn ?? false,
            // The number of the role doesn't differ from source to source.
            id: String(header(Qt.UserRole + 3) ?? ""),
            source: model.mapProxyColumnToSource(column)
        };
    }

    function read() {
        const count = model?.columnCount() ?? 0;
        const found = [];
        for (let column = 0; column < count; ++column)
            found.push(describe(column));
        layOut();
        // The header makes its cells anew for a new list.
        if (JSON.stringify(found) !== JSON.stringify(list))
            list = found;
    }

    function isResizable(column: int): bool {
        return model.columnProportionalWidth(column) <= 0;
    }

    function layOut() {
        const count = model?.columnCount() ?? 0;
        const shares = count > 0 ? model.proportionalWidth() : 0;
        const ownWidth = column => Math.max(minimum, model.columnWidth(column));
        let fixed = 0;
        for (let column = 0; column < count; ++column)
            fixed += isResizable(column) ? ownWidth(column) : 0;
        const shared = Math.max(0, room - fixed);
        const newWidths = [];
        const newEdges = [0];
        let share = 0;
        let given = 0;
        let least = fixed;
        for (let column = 0; column < count; ++column) {
            let width = 0;
            if (isResizable(column)) {
                width = ownWidth(column);
            } else {
                share += model.columnProportionalWidth(column);
                const end = Math.round(shared * share / shares);
                width = Math.max(2 * minimum, end - given);
                given = end;
                least += 2 * minimum;
            }
            newWidths.push(width);
            newEdges.push(newEdges[column] + width);
        }
        leastTotal = least;
        if (String(newWidths) === String(widths))
            return;
        widths = newWidths;
        edges = newEdges;
        laidOut();
    }

    function resize(column: int, width: real) {
        model.resizeColumn(column, Math.max(minimum, Math.round(width)));
        layOut();
    }

    function sort(column: int) {
        const isSorted = sorted === list[column].source;
        model.doSort(column, isSorted ? !model.ascending : model.isInitiallyAscending(column));
    }

    // The model tells the place of a hidden column that the table is sorted by as well, where another one stands.
    function noteSort(isNew: bool) {
        const column = model?.proxySortColumn ?? -1;
        if (column < 0)
            sorted = -1;
        else if (isNew || sorted < 0 || model.mapSourceColumnToProxy(sorted) !== column)
            sorted = model.mapProxyColumnToSource(column);
    }

    function save() {
        model?.saveColumnData();
    }

    onModelChanged: {
        read();
        noteSort(true);
    }
    onRoomChanged: layOut()
    Component.onDestruction: save()

    Connections {
        target: control.model ?? null

        function onHeaderDataChanged() {
            control.read();
        }
        function onColumnsInserted() {
            control.read();
        }
        function onColumnsMoved() {
            control.read();
        }
        function onColumnsRemoved() {
            control.read();
        }
        function onLayoutChanged() {
            control.read();
        }
        function onModelReset() {
            control.read();
            later.restart();
        }
        function onAscendingChanged() {
            control.noteSort(true);
        }
        function onProxySortColumnChanged() {
            control.noteSort(false);
            control.read();
        }
    }

    // A model that loads its columns as it gets a source doesn't tell of that.
    Timer {
        id: later

        interval: 0
        onTriggered: control.read()
    }
}
