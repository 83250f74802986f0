import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// All arrowheads and the blocks that may serve as one. The host ends the dialog at accepted() and rejected(), and shows the
// title.
PanelPage {
    id: page

    required property var controller
    readonly property string title: qsTr("Arrowheads")

    signal accepted
    signal rejected

    implicitWidth: 280
    implicitHeight: 380

    Keys.onEscapePressed: rejected()

    ColumnLayout {
        anchors.fill: parent
        spacing: Metrics.spacing

        PlainListView {
            id: list

            // A list that is made begins at its first row; the controller knows better.
            property bool isReady: false

            objectName: "arrowheads"
            Layout.fillWidth: true
            Layout.fillHeight: true
            focus: true
            model: page.controller.names
            Accessible.name: page.title
            onCurrentIndexChanged: {
                if (isReady)
                    page.controller.chosen = currentIndex;
            }
            onActivated: page.accepted()
            Component.onCompleted: {
                currentIndex = page.controller.chosen;
                isReady = true;
                view.positionViewAtIndex(currentIndex, ListView.Contain);
            }

            // qmllint disable unqualified
            delegate: ItemDelegate {
                required property string modelData
                required property int index

                objectName: "arrowhead:" + modelData
                width: ListView.view.width
                leftPadding: Metrics.padding + picture.width + Metrics.margin
                text: modelData.replace(/&/g, "&&")
                highlighted: ListView.isCurrentItem
                focusPolicy: Qt.NoFocus
                onPressed: {
                    list.currentIndex = index;
                    list.forceActiveFocus();
                }
                onDoubleClicked: page.accepted()

                ResizedImage {
                    id: picture

                    x: Metrics.padding
                    width: 44
                    height: 18
                    anchors.verticalCenter: parent.verticalCenter
                    mode: ResizedImage.Fit
                    image: page.controller.pictures[parent.index]
                }
            }
            // qmllint enable unqualified
        }
        DialogButtons {
            Layout.fillWidth: true
            acceptEnabled: page.controller.chosen >= 0
            onAccepted: page.accepted()
            onRejected: page.rejected()
        }
    }
}
