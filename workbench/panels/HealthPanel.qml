import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// What is amiss in the drawing: the kinds of flaws at the left, and what was found of the current one.
PanelPage {
    id: page

    required property var controller

    helpKey: "health"

    RowLayout {
        anchors.fill: parent
        spacing: Metrics.margin

        PlainListView {
            id: tasks

            objectName: "healthTasks"
            Layout.preferredWidth: 210
            Layout.fillHeight: true
            activeFocusOnTab: true
            textRole: "display"
            model: page.controller.tasks
            delegate: HealthTaskRow {
                owner: tasks
            }
            onCurrentIndexChanged: page.controller.currentTask = currentIndex
        }
        ColumnLayout {
            Layout.fillWidth: true
            Layout.fillHeight: true
            spacing: Metrics.spacing

            PanelTitle {
                Layout.fillWidth: true
                title: page.controller.title
                helpKey: page.helpKey
            }
            Label {
                objectName: "healthDescription"
                Layout.fillWidth: true
                text: page.controller.description
                color: Colors.textSecondary
                wrapMode: Text.Wrap
            }
            Item {
                Layout.fillWidth: true
                Layout.fillHeight: true

                PlainListView {
                    id: findings

                    objectName: "findings"
                    anchors.fill: parent
                    visible: page.controller.hasFindings
                    activeFocusOnTab: true
                    textRole: "display"
                    model: page.controller.findings
                    delegate: FindingRow {
                        owner: findings
                    }
                    onActivated: row => page.controller.selectFinding(row)
                }
                PlaceholderMessage {
                    objectName: "nothingFound"
                    anchors.centerIn: parent
                    width: Math.min(parent.width, implicitWidth)
                    visible: !page.controller.hasFindings
                    mark: !page.controller.hasDrawing ? "folder" : page.controller.isWanted ? "check" : "info"
                    text: !page.controller.hasDrawing ? qsTr("Open a drawing to see how it is.") : page.controller.isWanted ? qsTr("The drawing has none.") : qsTr("This isn't looked for.")
                }
            }
            RowLayout {
                spacing: Metrics.spacing

                Label {
                    objectName: "healthAdvice"
                    Layout.fillWidth: true
                    text: page.controller.hasFindings ? page.controller.advice : ""
                    wrapMode: Text.Wrap
                }
                Button {
                    objectName: "selectFindings"
                    enabled: page.controller.canSelect
                    text: qsTr("&Select")
                    onClicked: page.controller.select()
                }
                Button {
                    objectName: "fixFindings"
                    enabled: page.controller.canFix
                    text: qsTr("&Fix")
                    onClicked: page.controller.fix()
                }
            }
        }
    }
}
