import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// A table of a million rows, to sort, search and scroll.
PanelPage {
    id: page

    required property var controller

    helpKey: "tables"

    ColumnLayout {
        anchors.fill: parent
        spacing: Metrics.spacing

        RowLayout {
            spacing: Metrics.spacing

            SearchField {
                objectName: "searchParts"
                Layout.fillWidth: true
                Layout.maximumWidth: 280
                placeholderText: qsTr("Search parts")
                text: page.controller.searchText
                // A search among a million takes longer than a key.
                onTextChanged: pause.restart()

                Timer {
                    id: pause

                    interval: 200
                    onTriggered: page.controller.searchText = parent.text
                }
            }
            Button {
                objectName: "fill"
                enabled: !page.controller.filling
                text: qsTr("&Fill")
                onClicked: page.controller.fill()
            }
            Button {
                objectName: "stop"
                enabled: page.controller.filling
                text: qsTr("&Stop")
                onClicked: page.controller.stop()
            }
            ProgressBar {
                objectName: "progress"
                Layout.fillWidth: true
                opacity: page.controller.filling ? 1 : 0
                value: page.controller.progress
            }
            SelectionModeButtons {
                table: page.controller.table
            }
            HelpButton {
                key: page.helpKey
            }
        }
        Item {
            Layout.fillWidth: true
            Layout.fillHeight: true

            ModelTable {
                id: table

                objectName: "parts"
                anchors.fill: parent
                activeFocusOnTab: true
                model: page.controller.table
                // By the kinds of cells: 1 is a check.
                delegates: ({
                        1: check
                    })
            }
            PlaceholderMessage {
                anchors.centerIn: parent
                width: Math.min(parent.width, implicitWidth)
                visible: table.view.rows === 0 && !page.controller.filling
                mark: page.controller.progress > 0 ? "search" : "info"
                text: page.controller.progress > 0 ? qsTr("No part's name contains this text.") : qsTr("Fill makes a million rows to sort, search and scroll.")
            }
        }
        RowLayout {
            Label {
                objectName: "rowsText"
                Layout.fillWidth: true
                text: page.controller.rowsText
                color: Colors.textSecondary
                elide: Text.ElideRight
            }
            Label {
                objectName: "timeText"
                text: page.controller.timeText
                color: Colors.textSecondary
            }
        }
    }

    Component {
        id: check

        ModelTableCheck {}
    }
}
