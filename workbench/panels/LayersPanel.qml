import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// The layers of the drawing and what they give to their entities.
PanelPage {
    id: page

    required property var controller

    helpKey: "tables"

    ColumnLayout {
        anchors.fill: parent
        spacing: Metrics.spacing

        RecordTable {
            Layout.fillWidth: true
            Layout.fillHeight: true
            controller: page.controller
            name: "layers"
            helpKey: page.helpKey
            searchHint: qsTr("Search layers")
            nothingFound: qsTr("No layer's name or description contains this text.")
            noDrawing: qsTr("Open a drawing to see its layers.")
            onActivated: page.controller.renameCurrent()
        }
        Button {
            objectName: "rename"
            Layout.alignment: Qt.AlignRight
            text: qsTr("&Rename...")
            enabled: page.controller.canRename
            onClicked: page.controller.renameCurrent()
        }
    }
}
