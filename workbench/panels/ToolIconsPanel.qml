import QtQuick
import QtQuick.Controls
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// Every tool icon in all its sizes and both themes, pixel upon pixel.
PanelPage {
    id: page

    required property var controller

    helpKey: "images"

    ListView {
        id: list

        objectName: "toolIcons"
        anchors.fill: parent
        visible: count > 0
        activeFocusOnTab: true
        clip: true
        pixelAligned: true
        spacing: Metrics.spacing
        boundsBehavior: Flickable.StopAtBounds
        flickableDirection: Flickable.AutoFlickIfNeeded
        contentWidth: Math.max(width, contentItem.childrenRect.width)
        model: page.controller.icons
        delegate: Column {
            id: row

            required property string modelData

            objectName: "icon:" + modelData
            spacing: 2

            Label {
                text: row.modelData
            }
            Row {
                spacing: Metrics.spacing

                Repeater {
                    model: [true, false]

                    ResizedImage {
                        required property bool modelData

                        image: page.controller.strip(row.modelData, modelData)
                    }
                }
            }
        }
        ScrollBar.vertical: ScrollBar {}
        ScrollBar.horizontal: ScrollBar {}
    }
    PlaceholderMessage {
        objectName: "noToolIcons"
        anchors.centerIn: parent
        width: Math.min(parent.width, implicitWidth)
        visible: list.count === 0
        mark: "info"
        text: qsTr("This program has no tool icons.")
    }
}
