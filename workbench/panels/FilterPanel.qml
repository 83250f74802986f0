import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// Finds entities by what they are like; what is found is selected in the drawing at once.
PanelPage {
    id: page

    required property var controller

    helpKey: "filters"

    ColumnLayout {
        anchors.fill: parent
        spacing: Metrics.spacing

        PropertyFilter {
            objectName: "propertyFilter"
            Layout.fillWidth: true
            Layout.fillHeight: true
            tagsModel: page.controller.tags
            propertiesModel: page.controller.properties
            popup: page.controller.popup
            buttons: page.controller.buttons
            status: page.controller.status
        }
        RowLayout {
            Button {
                objectName: "selectMatches"
                enabled: page.controller.canSelect
                text: qsTr("Select again")
                onClicked: page.controller.selectMatches()
            }
            Item {
                Layout.fillWidth: true
            }
            HelpButton {
                key: page.helpKey
            }
        }
    }
}
