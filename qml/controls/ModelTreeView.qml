import QtQuick
import QtQuick.Controls
import Tandolin
import Tandolin.API.Controls
import Tandolin.API.Core.Themes
import Tandolin.API.Resources

// A tree for mouse and keyboard: Up, Down, Home, End and page keys move; Right opens a row or goes to its first child, Left
// closes it or goes to its parent; typed letters find the next shown row that begins with them. The model is any tree; it
// keeps which rows are open (see TreeRows). Texts come from textRole; the value of iconRole is the name of a mark, with or
// without ".svg" at its end, or the source of an image. Rows with a true value of dragRole can be dragged with the mouse,
// out of the page as well; Escape ends that.
FocusScope {
    id: control

    property var model: null
    property alias textRole: rows.textRole
    property string iconRole
    property string tipRole
    property string dragRole
    // Takes the index of the row that is dragged and tells whether it may be dropped where the mouse is.
    property var dropIsValid: index => true
    // What stands at the right of a row; its parent has the row as "model" and "hovered".
    property Component accessory: null
    property alias currentIndex: rows.currentIndex
    readonly property alias currentRow: rows.currentRow
    readonly property alias rows: rows
    readonly property alias view: list
    readonly property alias count: list.count

    // The user chose the row by Enter or a double click.
    signal activated(var index)
    signal clicked(var index)
    // The right mouse button or the menu key; the point is one of this control.
    signal contextMenuRequested(var index, point point)
    // The row was dragged somewhere, whether it may be dropped there or not.
    signal dropped(var index)

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
        else if (event.key === Qt.Key_Escape && list.draggedRow)
            list.draggedRow = null;
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
        property Item draggedRow: null
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
            readonly property string picture: control.iconRole ? String(model[control.iconRole] ?? "").replace(/\.svg$/, "") : ""
            readonly property bool canDrag: control.dragRole !== "" && model[control.dragRole] === true
            readonly property bool hasMark: picture in MarkPaths.outlines
            readonly property real indent: Metrics.markSize * model.treeDepth
            readonly property real pictureRoom: picture ? Metrics.markSize + 4 : 0

            objectName: control.objectName + "/" + (model[control.textRole] ?? "")
            width: ListView.view.width
            height: Metrics.rowHeight
            rightPadding: Metrics.padding + extra.width + extra.anchors.rightMargin
            leftPadding: 4 + indent + Metrics.markSize + 2 + (String(icon.source) === "" ? pictureRoom : 0)
            spacing: 4
            // A "&" in the data is no mnemonic.
            text: String(model[control.textRole] ?? "").replace(/&/g, "&&")
            icon.source: hasMark ? "" : Icons.source(picture)
            highlighted: index === control.currentRow
            focusPolicy: Qt.NoFocus
            onPressed: choose()
            onClicked: control.clicked(rows.indexAt(index))
            onDoubleClicked: control.activated(rows.indexAt(index))
            ListView.onPooled: {
                if (list.draggedRow === row)
                    list.draggedRow = null;
            }

            function choose() {
                control.forceActiveFocus();
                typed.stop();
                rows.currentIndex = rows.indexAt(index);
            }

            ToolTip.text: hovered && control.tipRole ? model[control.tipRole] ?? "" : ""
            ToolTip.visible: Settings.tooltips && hovered && !down && ToolTip.text !== ""
            ToolTip.delay: Settings.tooltipDelay

            // In the button's place: out of that, the list would take the mouse.
            MouseArea {
                property bool isValid: false

                anchors.fill: parent
                enabled: row.canDrag
                preventStealing: true
                cursorShape: list.draggedRow !== row ? Qt.ArrowCursor : isValid ? Qt.DragCopyCursor : Qt.ForbiddenCursor
                drag.target: Item {}
                drag.onActiveChanged: {
                    if (drag.active)
                        list.draggedRow = row;
                }
                onPressed: row.choose()
                onClicked: row.clicked()
                onDoubleClicked: row.doubleClicked()
                onPositionChanged: isValid = list.draggedRow === row && control.dropIsValid(rows.indexAt(row.index))
                onReleased: {
                    if (list.draggedRow !== row)
                        return;
                    list.draggedRow = null;
                    control.dropped(rows.indexAt(row.index));
                }
                onCanceled: list.draggedRow = null
            }

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
            Loader {
                id: extra

                readonly property var model: row.model
                readonly property bool hovered: row.hovered || row.highlighted

                anchors.right: parent.right
                anchors.rightMargin: bar.size < 1 ? bar.width : 0
                anchors.verticalCenter: parent.verticalCenter
                sourceComponent: control.accessory
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
        ScrollBar.vertical: ScrollBar {
            id: bar
        }
    }
}
