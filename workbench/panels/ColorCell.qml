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

    MouseArea {
        anchors.fill: parent
        // Keys with it extend the selection.
        onPressed: event => event.accepted = event.modifiers === Qt.NoModifier
        onClicked: {
            content.cell.table.model.leftClickSelection(content.cell.row, content.cell.column);
            content.activate();
        }
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
