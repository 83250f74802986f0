import QtQuick
import Tandolin.API.Core.Themes

// Colours by their indices, row by row, to choose one of by mouse or arrow keys.
Item {
    id: grid

    required property var controller
    // A list of numbers.
    required property var indices
    property int columns: indices.length
    property int cellSize: 16
    // Told from the background by a line instead of a gap.
    property bool outlined: false
    readonly property int position: indices.indexOf(controller.index)
    // What the mouse is over; -1 for nothing.
    readonly property int hoveredIndex: mouse.containsMouse ? indexAt(mouse.mouseX, mouse.mouseY) : -1

    // The user chose the colour by a double click.
    signal activated

    function indexAt(x: real, y: real): int {
        const column = Math.floor(x / cellSize);
        const place = Math.floor(y / cellSize) * columns + column;
        return x >= 0 && y >= 0 && column < columns && place < indices.length ? indices[place] : -1;
    }

    function choose(place: int) {
        if (place >= 0 && place < indices.length)
            controller.index = indices[place];
    }

    implicitWidth: columns * cellSize
    implicitHeight: Math.ceil(indices.length / columns) * cellSize
    activeFocusOnTab: true
    Accessible.role: Accessible.ColorChooser
    Accessible.description: position < 0 ? "" : controller.name

    Keys.onPressed: event => {
        const step = {
            [Qt.Key_Left]: -1,
            [Qt.Key_Right]: 1,
            [Qt.Key_Up]: -columns,
            [Qt.Key_Down]: columns
        }[event.key];
        event.accepted = true;
        if (event.key === Qt.Key_Home || (step && position < 0))
            choose(0);
        else if (event.key === Qt.Key_End)
            choose(indices.length - 1);
        else if (step)
            choose(position + step);
        else
            event.accepted = false;
    }

    Repeater {
        model: grid.indices

        // qmllint disable unqualified
        Rectangle {
            required property int index
            required property int modelData

            objectName: "color" + modelData
            x: index % grid.columns * grid.cellSize
            y: Math.floor(index / grid.columns) * grid.cellSize
            width: grid.cellSize - (grid.outlined ? 2 : 0)
            height: width
            color: grid.controller.colorOf(modelData)
            border.width: 1
            border.color: grid.outlined ? Colors.outline : Colors.background
        }
        // qmllint enable unqualified
    }
    // Two frames, of which one is seen on any colour.
    Rectangle {
        objectName: "mark"
        visible: grid.position >= 0
        x: grid.position % grid.columns * grid.cellSize - 1
        y: Math.floor(grid.position / grid.columns) * grid.cellSize - 1
        width: grid.cellSize + (grid.outlined ? 0 : 2)
        height: width
        color: "transparent"
        border.width: 2
        border.color: "white"

        Rectangle {
            anchors.fill: parent
            anchors.margins: 2
            color: "transparent"
            border.color: "black"
        }
    }
    Rectangle {
        anchors.fill: parent
        anchors.margins: -3
        visible: grid.activeFocus
        radius: Metrics.radius
        color: "transparent"
        border.width: 1
        border.color: Colors.focus
    }
    MouseArea {
        id: mouse

        anchors.fill: parent
        hoverEnabled: true
        onPressed: event => {
            const index = grid.indexAt(event.x, event.y);
            grid.forceActiveFocus();
            if (index >= 0)
                grid.controller.index = index;
        }
        onPositionChanged: event => {
            if (pressed && containsMouse && grid.indexAt(event.x, event.y) >= 0)
                grid.controller.index = grid.indexAt(event.x, event.y);
        }
        onDoubleClicked: event => {
            if (grid.indexAt(event.x, event.y) >= 0)
                grid.activated();
        }
    }
}
