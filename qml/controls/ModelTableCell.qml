import QtQuick
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// One cell of a ModelTable: its text with an icon, or what the table's "delegates" have for the type of its column.
Rectangle {
    id: cell

    required property int row
    required property int column
    // Gives every role of the model by its name.
    required property var model
    required property var display
    required property bool isSelected
    required property bool isHovered
    required property bool isPreFocusCell
    required property var table

    readonly property var info: table.columns.list[column] ?? ({})
    readonly property bool isHighlighted: isHovered && table.isPointed
    readonly property color textColor: enabled ? Colors.text : Colors.textDisabled
    // The item that stands for the text; null: none.
    property Item content: null
    readonly property bool isTruncated: label.visible && label.truncated
    readonly property string text: label.text

    property var contentComponent: table.delegates[info.type] ?? (info.selectionColumn ? table.selectionMark : null)
    property var madeFrom: null

    // Writes to the model.
    function commit(value: var, role: int): bool {
        return table.commit(row, column, value, role);
    }

    function makeContent() {
        if (madeFrom === contentComponent)
            return;
        madeFrom = contentComponent;
        if (content) {
            content.visible = false;
            content.destroy();
        }
        content = contentComponent?.createObject(cell, {
            cell: cell
        }) ?? null;
        if (content)
            content.anchors.fill = cell;
    }

    implicitWidth: content ? content.implicitWidth : 2 * Metrics.padding + icon.room + label.implicitWidth + 1
    implicitHeight: Metrics.rowHeight
    color: {
        if (isSelected)
            return Colors.selection;
        if (isHighlighted)
            return Colors.hover;
        return row % 2 === 1 ? table.stripe : "transparent";
    }
    // The keyboard's cell.
    border.width: isPreFocusCell ? 2 : 0
    border.color: Colors.focus

    Accessible.role: Accessible.Cell
    Accessible.name: label.text
    Accessible.selected: isSelected

    onContentComponentChanged: makeContent()
    Component.onCompleted: makeContent()

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        // A drag selects and doesn't move the view.
        preventStealing: true
        onPressed: event => cell.table.pointer.press(cell.row, cell.column, event)
        onDoubleClicked: event => {
            if (event.button === Qt.LeftButton)
                cell.table.pointer.doubleClick(cell.row, cell.column);
        }
        onReleased: event => {
            const at = mapToItem(cell.table.pointer, event.x, event.y);
            if (event.button === Qt.RightButton && containsMouse)
                cell.table.pointer.askForMenu(cell.row, cell.column, at);
        }
    }
    Text {
        id: label

        anchors.fill: parent
        anchors.leftMargin: Metrics.padding + icon.room
        anchors.rightMargin: Metrics.padding
        visible: !cell.content
        text: String(cell.display ?? "")
        textFormat: Text.PlainText
        color: cell.textColor
        elide: Text.ElideRight
        maximumLineCount: 1
        horizontalAlignment: (cell.info.alignment ?? 0) & (Text.AlignLeft | Text.AlignRight | Text.AlignHCenter)
        verticalAlignment: Text.AlignVCenter
        font.pointSize: Metrics.fontSize
        font.hintingPreference: Metrics.hinting
        renderType: Metrics.renderType
    }
    Loader {
        id: icon

        readonly property url source: cell.content ? "" : Icons.source(cell.model.decoration)
        readonly property real room: active ? Metrics.markSize + 4 : 0

        x: Metrics.padding
        anchors.verticalCenter: parent.verticalCenter
        active: String(source) !== ""
        // qmllint disable unqualified
        sourceComponent: Image {
            width: Metrics.markSize
            height: Metrics.markSize
            sourceSize.width: width
            sourceSize.height: height
            fillMode: Image.PreserveAspectFit
            source: icon.source
        }
        // qmllint enable unqualified
    }
    Rectangle {
        x: parent.width - 1
        width: 1
        height: parent.height
        color: cell.table.gridLine
    }
}
