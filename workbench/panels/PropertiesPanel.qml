import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// The properties of the selected entity, or of the current layer of the structure.
PanelPage {
    id: page

    required property var controller

    helpKey: "models"

    PropertyList {
        objectName: "properties"
        anchors.fill: parent
        visible: page.controller.properties !== null
        model: page.controller.properties
    }
    PlaceholderMessage {
        objectName: "noProperties"
        anchors.centerIn: parent
        width: Math.min(parent.width, implicitWidth)
        visible: page.controller.properties === null
        mark: "info"
        text: page.controller.hasDrawing ? qsTr("Select an entity to see its properties.") : qsTr("Open a drawing to see the properties of what is in it.")
    }
}
