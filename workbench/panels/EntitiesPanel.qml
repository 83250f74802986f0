import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// All entities of the drawing as a table.
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
                objectName: "searchEntities"
                Layout.fillWidth: true
                Layout.maximumWidth: 280
                enabled: page.controller.hasDrawing
                placeholderText: qsTr("Search entities")
                text: page.controller.searchText
                onTextChanged: page.controller.searchText = text
            }
            Label {
                objectName: "entitiesStatus"
                Layout.fillWidth: true
                text: page.controller.hasDrawing ? page.controller.status : ""
                color: Colors.textSecondary
                elide: Text.ElideRight
            }
            Label {
                text: qsTr("A click selects")
                color: Colors.textSecondary
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

                objectName: "entities"
                anchors.fill: parent
                visible: page.controller.hasDrawing
                model: page.controller.table
                activeFocusOnTab: true
                // By the kinds of cells: 2 is a colour.
                delegates: ({
                        2: color
                    })
                onCellActivated: page.controller.zoomToSelection()
            }
            PlaceholderMessage {
                anchors.centerIn: parent
                width: Math.min(parent.width, implicitWidth)
                visible: !page.controller.hasDrawing || table.view.rows === 0
                mark: page.controller.hasDrawing ? "search" : "folder"
                text: !page.controller.hasDrawing ? qsTr("Open a drawing to see its entities.") : page.controller.searchText !== "" ? qsTr("No entity has this text.") : qsTr("The drawing is empty.")
            }
        }
    }

    Component {
        id: color

        ColorCell {}
    }
}
