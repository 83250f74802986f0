import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// The title bar of a running command's panel: what runs, and a button that cancels it.
Pane {
    id: title

    required property var controller

    topPadding: 2
    bottomPadding: 2
    leftPadding: Metrics.margin
    rightPadding: 4
    background: Rectangle {
        color: Colors.tabStrip
    }

    RowLayout {
        anchors.fill: parent
        spacing: Metrics.spacing

        ToolIcon {
            name: title.controller.name.toLowerCase()
            size: Metrics.markSize
        }
        Label {
            objectName: "commandName"
            Layout.fillWidth: true
            text: title.controller.name
            font.bold: true
            elide: Text.ElideRight
        }
        HelpButton {
            key: "commands"
        }
        IconButton {
            objectName: "closeCommand"
            enabled: title.controller.panelEnabled
            mark: "cross"
            text: qsTr("Cancel the command (Esc)")
            onClicked: title.controller.closeClick()
        }
    }
}
