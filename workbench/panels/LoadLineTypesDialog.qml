import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// Loads linetypes of a file into the drawing. The host ends the dialog at accepted() and rejected(), and shows the title.
PanelPage {
    id: page

    required property var controller
    readonly property string title: qsTr("Load Linetypes")
    readonly property int chosen: controller.table.selectedSourcesCount

    signal accepted
    signal rejected

    implicitWidth: 750
    implicitHeight: 480

    Keys.onEscapePressed: rejected()

    function accept() {
        if (chosen > 0)
            accepted();
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: Metrics.spacing

        RowLayout {
            spacing: Metrics.spacing

            Label {
                text: qsTr("File")
            }
            TextField {
                objectName: "file"
                Layout.fillWidth: true
                readOnly: true
                text: page.controller.file
                Accessible.name: qsTr("File of linetypes")
            }
            Button {
                objectName: "otherFile"
                text: qsTr("O&ther...")
                onClicked: page.controller.askForFile()
            }
        }
        Item {
            Layout.fillWidth: true
            Layout.fillHeight: true

            ModelTable {
                objectName: "lineTypes"
                anchors.fill: parent
                visible: page.controller.error === ""
                focus: true
                activeFocusOnTab: true
                model: page.controller.table
                Accessible.name: qsTr("Linetypes")
                // By the kinds of cells: 5 is a line.
                delegates: ({
                        5: line
                    })
                onCellActivated: page.accept()
            }
            PlaceholderMessage {
                objectName: "error"
                anchors.centerIn: parent
                width: Math.min(parent.width, implicitWidth)
                visible: page.controller.error !== ""
                mark: "warning"
                text: page.controller.error
            }
        }
        Label {
            visible: problems.visible
            text: page.controller.problems.length === 1 ? qsTr("A line of the file was skipped:") : qsTr("%1 lines of the file were skipped:").arg(page.controller.problems.length)
            color: Colors.warning
        }
        ScrollView {
            id: problems

            Layout.fillWidth: true
            Layout.preferredHeight: 4 * Metrics.rowHeight
            visible: page.controller.problems.length > 0

            TextArea {
                objectName: "problems"
                readOnly: true
                textFormat: TextEdit.PlainText
                text: page.controller.problems.join("\n")
                Accessible.name: qsTr("Lines that were skipped")
            }
        }
        RowLayout {
            Label {
                Layout.fillWidth: true
                elide: Text.ElideRight
                color: Colors.textSecondary
                text: {
                    if (page.controller.error !== "")
                        return "";
                    return page.chosen === 1 ? qsTr("1 linetype chosen") : qsTr("%1 linetypes chosen").arg(page.chosen);
                }
            }
            DialogButtons {
                acceptText: qsTr("&Load")
                acceptEnabled: page.chosen > 0
                onAccepted: page.accept()
                onRejected: page.rejected()
            }
        }
    }

    Component {
        id: line

        LineTypeCell {
            controller: page.controller
        }
    }
}
