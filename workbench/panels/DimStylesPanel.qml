import QtQuick
import Tandolin.API.Controls

// The dimension styles of the drawing.
PanelPage {
    id: page

    required property var controller

    helpKey: "tables"

    RecordTable {
        anchors.fill: parent
        controller: page.controller
        name: "dimStyles"
        helpKey: page.helpKey
        searchHint: qsTr("Search dimension styles")
        nothingFound: qsTr("No dimension style's name contains this text.")
        noDrawing: qsTr("Open a drawing to see its dimension styles.")
    }
}
