import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// The drawing as a tree of what is in it, and what can be done with the selected entity.
PanelPage {
    id: page

    required property var controller

    helpKey: "models"

    ColumnLayout {
        anchors.fill: parent
        spacing: Metrics.spacing

        PanelTitle {
            objectName: "structureTitle"
            Layout.fillWidth: true
            title: qsTr("Structure")
            menuModel: page.controller.menu
            helpKey: page.helpKey
        }
        SplitButton {
            objectName: "actions"
            Layout.fillWidth: true
            enabled: page.controller.hasDrawing
            model: page.controller.actions
        }
        Item {
            Layout.fillWidth: true
            Layout.fillHeight: true

            ModelTreeView {
                id: tree

                objectName: "structure"
                anchors.fill: parent
                visible: page.controller.hasDrawing
                model: page.controller.tree
                textRole: "display"
                iconRole: "mark"
                onCurrentIndexChanged: page.controller.currentIndex = currentIndex
                onActivated: index => page.controller.activate(index)
                Component.onCompleted: currentIndex = page.controller.currentIndex

                Connections {
                    target: page.controller
                    function onCurrentIndexChanged() {
                        tree.currentIndex = page.controller.currentIndex;
                    }
                }
            }
            PlaceholderMessage {
                anchors.centerIn: parent
                width: Math.min(parent.width, implicitWidth)
                visible: !page.controller.hasDrawing
                mark: "folder"
                text: qsTr("Open a drawing to see its structure.")
            }
        }
    }
}
