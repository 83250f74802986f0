import QtQuick
import QtQuick.Controls
import Tandolin
import Tandolin.API.Controls
import Tandolin.API.Core.Themes
import Tandolin.API.Resources

// One title of a ModelTableHeader.
Item {
    id: cell

    required property int index
    required property var modelData
    property var header: null

    readonly property bool isSorted: modelData.source === header.columns.sorted
    readonly property bool hasMark: modelData.picture in MarkPaths.outlines
    readonly property real pictureRoom: modelData.picture ? Metrics.markSize + 4 : 0
    readonly property real markRoom: isSorted ? Metrics.markSize : 0
    readonly property real wantedWidth: 2 * Metrics.padding + pictureRoom + label.implicitWidth + Metrics.markSize

    objectName: "header:" + modelData.title
    // The border reaches over the next title.
    z: -index

    Accessible.role: Accessible.ColumnHeader
    Accessible.name: modelData.title
    Accessible.onPressAction: header.columns.sort(index)

    ToolTip.text: modelData.title
    ToolTip.visible: Settings.tooltips && area.containsMouse && !area.pressed
        && (label.truncated || (label.width <= 0 && modelData.title !== ""))
    ToolTip.delay: Settings.tooltipDelay

    Rectangle {
        anchors.fill: parent
        color: area.pressed && !area.moved ? Colors.buttonPressed : area.containsMouse ? Colors.hover : Colors.ribbon
    }
    Mark {
        x: Metrics.padding
        anchors.verticalCenter: parent.verticalCenter
        visible: cell.hasMark
        name: cell.hasMark ? cell.modelData.picture : ""
    }
    Image {
        x: Metrics.padding
        anchors.verticalCenter: parent.verticalCenter
        width: Metrics.markSize
        height: Metrics.markSize
        sourceSize.width: width
        sourceSize.height: height
        fillMode: Image.PreserveAspectFit
        source: cell.hasMark ? "" : Icons.source(cell.modelData.picture)
    }
    Label {
        id: label

        x: Metrics.padding + cell.pictureRoom
        width: cell.width - x - Metrics.padding - cell.markRoom
        anchors.verticalCenter: parent.verticalCenter
        horizontalAlignment: cell.modelData.alignment & (Text.AlignLeft | Text.AlignRight | Text.AlignHCenter)
        visible: width > 0
        elide: Text.ElideRight
        text: cell.modelData.title
        color: cell.enabled ? Colors.textSecondary : Colors.textDisabled
    }
    Mark {
        objectName: "sortMark"
        anchors.right: parent.right
        anchors.rightMargin: 3
        anchors.verticalCenter: parent.verticalCenter
        visible: cell.isSorted
        name: cell.header.columns.model?.ascending ? "chevron-up" : "chevron-down"
        color: Colors.accentStrong
        lineWidth: 1.6
    }
    Rectangle {
        x: parent.width - 1
        y: 4
        width: 1
        height: parent.height - 8
        color: Colors.border
    }
    MouseArea {
        id: area

        property real pressX: 0
        property bool moved: false

        anchors.fill: parent
        hoverEnabled: true
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        onPressed: event => {
            pressX = event.x;
            moved = false;
            cell.header.table.takeFocus();
        }
        onPositionChanged: event => {
            if (!(pressedButtons & Qt.LeftButton))
                return;
            moved = moved || Math.abs(event.x - pressX) >= Application.styleHints.startDragDistance;
            if (moved)
                cell.header.drag(cell.index, mapToItem(cell.header, event.x, 0).x);
        }
        onCanceled: cell.header.endDrag()
        // The last statement: a click may make the titles anew.
        onReleased: event => {
            const at = mapToItem(cell.header, event.x, event.y);
            if (moved)
                cell.header.drop();
            else if (event.button === Qt.RightButton)
                cell.header.openMenu(cell.index, at.x, at.y);
            else if (containsMouse)
                cell.header.columns.sort(cell.index);
        }
    }
    MouseArea {
        id: border

        property real pressX: 0

        objectName: "border"
        x: parent.width - 4
        width: 8
        height: parent.height
        enabled: cell.header.columns.isResizable(cell.index)
        cursorShape: Qt.SplitHCursor
        preventStealing: true
        onPressed: event => pressX = cell.width - mapToItem(cell, event.x, 0).x
        onPositionChanged: event => cell.header.columns.resize(cell.index, mapToItem(cell, event.x, 0).x + pressX)
        onReleased: cell.header.columns.save()
        onDoubleClicked: cell.header.table.fitColumn(cell.index)
    }
}
