import QtQuick
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// A delegate of a table: a line of the linetype whose dashes the cell has.
Item {
    id: content

    required property ModelTableCell cell
    // Has strokes(dashes, length).
    required property var controller

    implicitWidth: Metrics.fieldWidth

    Accessible.ignored: true

    Repeater {
        model: content.controller.strokes(content.cell.model.decoration ?? [], Math.round(content.width) - 2 * Metrics.padding)
        delegate: Rectangle {
            required property point modelData

            x: Metrics.padding + modelData.x
            y: Math.floor(content.height / 2)
            width: modelData.y - modelData.x
            height: 1
            color: content.cell.textColor
        }
    }
}
