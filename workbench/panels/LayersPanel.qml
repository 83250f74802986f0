import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin.API.Controls
import Tandolin.API.Core.Themes
import Tandolin.API.Resources

// The layers of the drawing: which are shown, and their names.
PanelPage {
    id: page

    required property var controller

    ColumnLayout {
        anchors.fill: parent
        spacing: Metrics.spacing

        SearchField {
            objectName: "search"
            Layout.fillWidth: true
            enabled: page.controller.hasDrawing
            placeholderText: qsTr("Search layers")
            onTextChanged: page.controller.setSearchText(text)
        }
        Item {
            Layout.fillWidth: true
            Layout.fillHeight: true

            PlainListView {
                id: list

                // A list that is made anew begins at its first row; the controller knows better.
                property bool isReady: false

                objectName: "layers"
                anchors.fill: parent
                visible: page.controller.hasDrawing
                activeFocusOnTab: true
                textRole: "name"
                model: page.controller.layers
                onCurrentIndexChanged: {
                    if (isReady)
                        page.controller.currentRow = currentIndex;
                }
                onActivated: page.controller.renameCurrent()
                delegate: LayerRow {
                    owner: list
                    onSwitched: on => page.controller.setOn(index, on)
                }
                Component.onCompleted: {
                    currentIndex = page.controller.currentRow;
                    isReady = true;
                }

                Connections {
                    target: page.controller
                    function onCurrentRowChanged() {
                        list.currentIndex = page.controller.currentRow;
                    }
                }
            }
            PlaceholderMessage {
                anchors.centerIn: parent
                width: Math.min(parent.width, implicitWidth)
                visible: list.count === 0
                mark: page.controller.hasDrawing ? "search" : "folder"
                text: page.controller.hasDrawing ? qsTr("No layer's name contains this text.") : qsTr("Open a drawing to see its layers.")
            }
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
