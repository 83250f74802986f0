import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin.API.Controls
import Tandolin.API.Core.Themes
import Tandolin.API.Resources

// Folders with drawings and their layouts.
PanelPage {
    id: page

    required property var controller

    helpKey: "sheetsets"

    // What is done by then isn't worth a sign.
    Timer {
        id: shortly

        interval: 200
        running: page.controller.isReading
    }
    ColumnLayout {
        anchors.fill: parent
        spacing: Metrics.spacing

        RowLayout {
            spacing: 2

            PanelTitle {
                Layout.fillWidth: true
                title: qsTr("Sheet Sets")
                helpKey: page.helpKey
            }
            BusyIndicator {
                implicitWidth: Metrics.controlHeight
                implicitHeight: Metrics.controlHeight
                visible: page.controller.isReading && !shortly.running
            }
            IconButton {
                objectName: "addFolder"
                mark: "add"
                text: qsTr("Add a folder")
                onClicked: page.controller.askForFolder()
            }
            IconButton {
                objectName: "goToDrawing"
                mark: "target"
                text: qsTr("Go to the current drawing")
                enabled: page.controller.hasDrawing
                onClicked: page.controller.goToDrawing()
            }
            IconButton {
                objectName: "reload"
                mark: "refresh"
                text: qsTr("Reload")
                enabled: page.controller.roots.length > 0
                onClicked: page.controller.reload()
            }
            IconButton {
                objectName: "removeFolder"
                mark: "delete"
                text: qsTr("Remove the folder from the list")
                enabled: page.controller.canRemove
                onClicked: page.controller.removeCurrent()
            }
        }
        Item {
            Layout.fillWidth: true
            Layout.fillHeight: true

            ModelTreeView {
                id: tree

                objectName: "sheets"
                anchors.fill: parent
                visible: page.controller.roots.length > 0
                model: page.controller.tree
                textRole: "display"
                iconRole: "icon"
                tipRole: "toolTip"
                dragRole: "dragValid"
                dropIsValid: index => page.controller.isDropValid(index)
                onCurrentIndexChanged: page.controller.currentIndex = currentIndex
                onClicked: index => page.controller.currentIndex = index
                onActivated: index => {
                    if (!page.controller.activate(index))
                        rows.setOpen(currentRow, !isOpen(currentRow));
                }
                onDropped: index => page.controller.drop(index)
                Keys.onDeletePressed: page.controller.removeCurrent()
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
                visible: page.controller.roots.length === 0
                mark: "folder"
                text: qsTr("Add a folder to see its drawings and their layouts.")
            }
        }
        Flickable {
            objectName: "missing"
            Layout.fillWidth: true
            implicitHeight: Math.min(missing.height, page.height / 4)
            contentHeight: missing.height
            visible: page.controller.missingRoots.length > 0
            clip: true
            boundsBehavior: Flickable.StopAtBounds
            ScrollBar.vertical: ScrollBar {
                id: bar
            }

            // No layout: of one that isn't shown, Qt forgets to take out what goes.
            Column {
                id: missing

                width: parent.width - (bar.size < 1 ? bar.width : 0)
                spacing: Metrics.spacing

                Repeater {
                    model: page.controller.missingRoots

                    SheetSetNote {
                        required property string modelData

                        objectName: "missing:" + modelData
                        width: missing.width
                        mark: "info"
                        text: qsTr("Not found: %1").arg(modelData)
                        action: qsTr("Remove the folder from the list")
                        onDismissed: page.controller.removeRoot(modelData)
                    }
                }
            }
        }
        SheetSetNote {
            objectName: "sheetsWarning"
            visible: text !== ""
            mark: "warning"
            text: page.controller.warning
            action: qsTr("Hide this")
            onDismissed: page.controller.dismissWarning()
        }
    }
}
