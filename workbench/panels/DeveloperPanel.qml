import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// Switches and choices for whoever works on the pages. They last until the program ends.
PanelPage {
    id: page

    property var controller: null

    helpKey: "images"

    ColumnLayout {
        id: content

        anchors.fill: parent
        spacing: Metrics.spacing

        DevSettingsList {
            id: list

            objectName: "devSettings"
            Layout.fillWidth: true
            Layout.fillHeight: true
            focus: true
            settings: tools.settings
        }
        Label {
            Layout.fillWidth: true
            text: qsTr("What the pages read")
            color: Colors.textSecondary
            font.pointSize: Metrics.smallFontSize
            elide: Text.ElideRight
        }
        Label {
            objectName: "devDict"
            Layout.fillWidth: true
            text: Object.entries(tools.values).map(entry => entry[0] + ": " + entry[1]).join("\n")
        }
    }
    DeveloperTools {
        id: tools

        target: content
        // The list on this page is where they are set.
        follows: false
    }
}
