import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin.API.Core.Themes

// A titled table of labels and values.
ColumnLayout {
    id: table

    property string title
    property var rows: []

    spacing: 2

    Label {
        Layout.topMargin: Metrics.margin
        text: table.title
        color: Colors.textSecondary
        font.pointSize: Metrics.smallFontSize
    }
    Rectangle {
        Layout.fillWidth: true
        Layout.bottomMargin: 2
        implicitHeight: 1
        color: Colors.separator
    }
    Repeater {
        model: table.rows

        RowLayout {
            id: row

            required property var modelData

            Layout.fillWidth: true

            Label {
                Layout.fillWidth: true
                text: row.modelData.label
                elide: Text.ElideRight
            }
            Label {
                text: row.modelData.value
            }
        }
    }
}
