import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// A tab for each open drawing, with a mark that closes it.
FocusScope {
    id: page

    required property var controller

    focus: true

    Rectangle {
        anchors.fill: parent
        color: Colors.tabStrip
    }
    ListView {
        id: tabs

        objectName: "drawingTabs"
        anchors.fill: parent
        focus: true
        activeFocusOnTab: true
        orientation: ListView.Horizontal
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        model: page.controller.files
        Accessible.role: Accessible.PageTabList
        Accessible.name: qsTr("Open drawings")
        Keys.onLeftPressed: page.controller.activate(page.controller.current - 1)
        Keys.onRightPressed: page.controller.activate(page.controller.current + 1)
        Keys.onDeletePressed: page.controller.close(page.controller.current)

        delegate: TabButton {
            id: tab

            required property string modelData
            required property int index
            readonly property string fileName: modelData.slice(Math.max(modelData.lastIndexOf("/"), modelData.lastIndexOf("\\")) + 1)

            objectName: "tab:" + fileName
            height: tabs.height
            rightPadding: closeButton.width + 6
            focusPolicy: Qt.NoFocus
            checked: index === page.controller.current
            text: fileName
            onClicked: page.controller.choose(index)

            ToolTip.text: modelData
            ToolTip.visible: Settings.tooltips && hovered && !down
            ToolTip.delay: Settings.tooltipDelay

            IconButton {
                id: closeButton

                objectName: "close:" + tab.fileName
                anchors.right: parent.right
                anchors.rightMargin: 3
                anchors.verticalCenter: parent.verticalCenter
                width: 18
                height: 18
                focusPolicy: Qt.NoFocus
                mark: "cross"
                text: qsTr("Close the drawing")
                onClicked: page.controller.close(tab.index)
            }
        }

        Connections {
            target: page.controller

            function onCurrentChanged() {
                tabs.positionViewAtIndex(page.controller.current, ListView.Contain);
            }
        }
    }
}
