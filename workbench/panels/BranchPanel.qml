import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin.API.Controls
import Tandolin.API.Core.Themes
import Tandolin.API.Resources

// One branch of the drawing's structure, and the way that leads to it.
PanelPage {
    id: page

    required property var controller
    readonly property var crumbs: controller.crumbs

    helpKey: "models"

    ColumnLayout {
        anchors.fill: parent
        spacing: Metrics.spacing

        // No layout: it would still ask for the sizes of crumbs that are gone.
        Row {
            id: way

            Layout.fillWidth: true
            spacing: 2

            IconButton {
                objectName: "up"
                enabled: page.crumbs.length > 1
                mark: "chevron-up"
                text: qsTr("&Up")
                onClicked: page.controller.up()
            }
            Repeater {
                model: page.crumbs

                Row {
                    id: crumb

                    required property int index
                    required property string modelData
                    readonly property bool isLast: index === page.crumbs.length - 1

                    Mark {
                        visible: crumb.index > 0
                        anchors.verticalCenter: parent.verticalCenter
                        name: "chevron-right"
                        color: Colors.textSecondary
                    }
                    ToolButton {
                        objectName: "crumb:" + crumb.index
                        visible: !crumb.isLast
                        focusPolicy: Qt.TabFocus
                        // A "&" in a name is no mnemonic.
                        text: crumb.modelData.replace(/&/g, "&&")
                        onClicked: page.controller.goTo(crumb.index)
                    }
                    Label {
                        width: Math.max(0, Math.min(implicitWidth, way.width - crumb.x - x))
                        height: Metrics.controlHeight
                        visible: crumb.isLast
                        leftPadding: Metrics.padding
                        text: crumb.modelData
                        textFormat: Text.PlainText
                        font.bold: true
                        elide: Text.ElideRight
                        verticalAlignment: Text.AlignVCenter
                    }
                }
            }
        }
        Label {
            objectName: "notice"
            Layout.fillWidth: true
            visible: text !== ""
            text: page.controller.notice
            textFormat: Text.PlainText
            color: Colors.warning
            wrapMode: Text.Wrap
        }
        Item {
            Layout.fillWidth: true
            Layout.fillHeight: true

            PlainListView {
                id: list

                // A list that is made anew begins at its first row; the controller knows better.
                property bool isReady: false

                objectName: "branch"
                anchors.fill: parent
                visible: !page.controller.isEmpty
                activeFocusOnTab: true
                textRole: "display"
                model: page.controller.rows
                onCurrentIndexChanged: {
                    if (isReady)
                        page.controller.currentRow = currentIndex;
                }
                onActivated: row => page.controller.enter(row)
                delegate: BranchRow {
                    owner: list
                }
                Keys.onPressed: event => {
                    event.accepted = event.key === Qt.Key_Backspace;
                    if (event.accepted)
                        page.controller.up();
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
                visible: page.controller.isEmpty
                mark: "folder"
                text: page.crumbs.length > 1 ? qsTr("Nothing is in here.") : qsTr("Open a drawing to walk through its branches.")
            }
        }
    }
}
