import QtQuick
import QtQuick.Controls
import Tandolin.API.Core.Themes

// What a click in a table selects: its row, its column or the cell alone.
Row {
    id: control

    // A SortFilterSelectModel.
    required property var table

    spacing: 2

    Repeater {
        model: [qsTr("Rows"), qsTr("Columns"), qsTr("Cells")]

        ToolButton {
            required property int index
            required property string modelData

            objectName: "selectionMode:" + index
            focusPolicy: Qt.TabFocus
            leftPadding: Metrics.padding
            rightPadding: Metrics.padding
            text: modelData
            checked: control.table.selectionMode === index
            ToolTip.text: qsTr("A click selects what it is on of these")
            onClicked: control.table.selectionMode = index
        }
    }
}
