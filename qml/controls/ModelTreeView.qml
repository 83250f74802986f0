import QtQuick
import QtQuick.Controls
import Tandolin.API.Controls
import Tandolin.API.Core.Themes
import Tandolin.API.Resources

// A tree for mouse and keyboard: Up, Down, Home, End and page keys move; Right opens a row or goes to its first child, Left
// closes it or goes to its parent; typed letters find the next shown row that begins with them. The model is any tree; it
// keeps which rows are open (see TreeRows). Texts come from textRole; the value of iconRole is the name of a mark or the
// source of an image.
FocusScope {
    id: control

    property var model: null
    property alias textRole: rows.textRole
    property string iconRole
    property alias currentIndex: rows.currentIndex
    readonly property alias currentRow: rows.currentRow
    readonly property alias rows: rows
    readonly property alias view: list
    readonly property alias count: list.count

    // The user chose the row by Enter or a double click.
    signal activated(var index)
    // The right mouse button or the menu key; the point is one of this control.
    signal contextMenuRequested(var index, point point)

    implicitWidth: 2 * Metrics.fieldWidth
    implicitHeight: 8 * Metrics.rowHeight

    function moveTo(row: int) {
        typed.stop();
        if (list.count > 0)
            currentIndex = rows.indexAt(Math.min(list.count - 1, Math.max(0, row)));
    }

    function isOpen(row: int): bool {
        return rows.data(rows.index(row, 0), TreeRows.OpenRole) === true;
    }

    function goRight() {
        if (currentRow < 0 || !rows.data(rows.index(currentRow, 0), TreeRows.BranchRole))
            return;
        if (isOpen(currentRow))
            moveTo(currentRow + 1);
        else
            rows.setOpen(currentRow, true);
    }

    function goLeft() {
        if (currentRow < 0)
            return;
        if (isOpen(currentRow) && rows.data(rows.index(currentRow, 0), TreeRows.BranchRole))
            rows.setOpen(currentRow, false);
        else if (currentIndex.parent.valid)
            currentIndex = currentIndex.parent;
    }

    function askForMenu(x: real, y: real) {
        contextMenuRequested(currentIndex, Qt.point(x, y));
    }

    Keys.onPressed: event => {
        const page = Math.max(1, Math.floor(list.height / Metrics.rowHeight) - 1);
        event.accepted = true;
        if (event.key === Qt.Key_Up)
            moveTo(currentRow - 1);
        else if (event.key === Qt.Key_Down)
            moveTo(currentRow + 1);
        else if (event.key === Qt.Key_Home)
            moveTo(0);
        else if (event.key === Qt.Key_End)
            moveTo(list.count - 1);
        else if (event.key === Qt.Key_PageUp)
            moveTo(currentRow - page);
        else if (event.key === Qt.Key_PageDown)
            moveTo(currentRow + page);
        else if (event.key === Qt.Key_Right)
            goRight();
        else if (event.key === Qt.Key_Left)
            goLeft();
        else if ((event.key === Qt.Key_Return || event.key === Qt.Key_Enter) && currentRow >= 0)
            activated(currentIndex);
        else if (event.key === Qt.Key_Menu && currentRow >= 0)
            askForMenu(Metrics.rowHeight, currentRow * Metrics.rowHeight - list.contentY + Metrics.rowHeight);
        else
            event.accepted = typed.take(event);
    }

    onCurrentRowChanged: {
        if (currentRow >= 0)
            list.positionViewAtIndex(currentRow, ListView.Contain);
    }

    TypedLetters {
        id: typed

        onWanted: letters => {
            const row = rows.find(letters, control.currentRow + (letters.length > 1 ? 0 : 1));
            if (row >= 0)
                control.currentIndex = rows.indexAt(row);
        }
    }

    TreeRows {
        id: rows

        source: control.model ?? null
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
        currentIndex: -1
        highlightFollowsCurrentItem: false
        reuseItems: true
        model: rows
        // qmllint disable unqualified
        delegate: ItemDelegate {
            id: row

            required property var model
            required property int index
            readonly property string picture: control.iconRole ? String(model[control.iconRole] ?? "") : ""
            readonly property bool hasMark: picture in MarkPaths.outlines
            readonly property real indent: Metrics.markSize * model.treeDepth
            readonly property real pictureRoom: picture ? Metrics.markSize + 4 : 0

            width: ListView.view.width
            height: Metrics.rowHeight
            leftPadding: 4 + indent + Metrics.markSize + 2 + (String(icon.source) === "" ? pictureRoom : 0)
            spacing: 4
            // A "&" in the data is no mnemonic.
            text: String(model[control.textRole] ?? "").replace(/&/g, "&&")
            icon.source: hasMark ? "" : Icons.source(picture)
            highlighted: index === control.currentRow
            focusPolicy: Qt.NoFocus
            onPressed: {
                control.forceActiveFocus();
                typed.stop();
                rows.currentIndex = rows.indexAt(index);
            }
            onDoubleClicked: control.activated(rows.indexAt(index))

            Mark {
                x: 4 + row.indent
                anchors.verticalCenter: parent.verticalCenter
                visible: row.model.treeBranch
                name: row.model.treeOpen ? "chevron-down" : "chevron-right"
                color: row.enabled ? Colors.textSecondary : Colors.textDisabled

                TapHandler {
                    gesturePolicy: TapHandler.WithinBounds
                    onTapped: rows.setOpen(row.index, !row.model.treeOpen)
                }
            }
            Mark {
                x: row.leftPadding - row.pictureRoom
                anchors.verticalCenter: parent.verticalCenter
                visible: row.hasMark
                name: row.hasMark ? row.picture : ""
            }
            TapHandler {
                acceptedButtons: Qt.RightButton
                onPressedChanged: {
                    if (!pressed)
                        return;
                    control.forceActiveFocus();
                    rows.currentIndex = rows.indexAt(row.index);
                }
                onTapped: {
                    const at = row.mapToItem(control, point.position.x, point.position.y);
                    control.askForMenu(at.x, at.y);
                }
            }
        }
        // qmllint enable unqualified
        ScrollBar.vertical: ScrollBar {}
    }
}
