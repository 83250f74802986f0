import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// What is in the drawing, and how it writes its values.
PanelPage {
    id: page

    required property var controller

    ScrollView {
        id: scroll

        anchors.fill: parent
        visible: page.controller.fileName !== ""
        contentWidth: availableWidth
        ScrollBar.horizontal.policy: ScrollBar.AlwaysOff

        ColumnLayout {
            width: scroll.availableWidth
            spacing: Metrics.spacing

            Label {
                objectName: "fileName"
                Layout.fillWidth: true
                text: page.controller.fileName
                font.bold: true
                elide: Text.ElideMiddle
            }
            Label {
                Layout.fillWidth: true
                text: page.controller.folder
                color: Colors.textSecondary
                elide: Text.ElideMiddle
            }
            InfoRows {
                Layout.fillWidth: true
                title: qsTr("Contents")
                rows: page.controller.contents
            }
            InfoRows {
                objectName: "currentValues"
                Layout.fillWidth: true
                title: qsTr("What new entities get")
                rows: page.controller.current
            }
            InfoRows {
                Layout.fillWidth: true
                title: qsTr("How values are written")
                rows: page.controller.units
            }
        }
    }
    PlaceholderMessage {
        anchors.centerIn: parent
        width: Math.min(parent.width, implicitWidth)
        visible: page.controller.fileName === ""
        mark: "info"
        text: qsTr("Open a drawing to see what is in it.")
    }
}
