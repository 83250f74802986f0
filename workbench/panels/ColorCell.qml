import QtQuick
import QtQuick.Controls
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// A delegate of a table: a colour and its name. A click opens the choice of colours.
Item {
    id: content

    required property ModelTableCell cell

    function activate() {
        cell.table.edit(cell.row, cell.column);
    }

    implicitWidth: label.x + label.implicitWidth + Metrics.padding

    TapHandler {
        acceptedModifiers: Qt.NoModifier
        onTapped: content.activate()
    }
    ColorSwatch {
        id: swatch

        x: Metrics.padding
        anchors.verticalCenter: parent.verticalCenter
        color: content.cell.model.decoration ?? "transparent"
    }
    Label {
        id: label

        x: swatch.x + swatch.width + Metrics.spacing
        width: content.width - x - Metrics.padding
        anchors.verticalCenter: parent.verticalCenter
        text: content.cell.display ?? ""
        textFormat: Text.PlainText
        elide: Text.ElideRight
        color: content.cell.textColor
    }
}
