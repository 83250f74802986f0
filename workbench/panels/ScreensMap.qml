import QtQuick
import QtQuick.Controls
import Tandolin.API.Core.Themes

// The monitors as they stand beside one another, with the program's window and the cursor.
Item {
    id: map

    required property var controller

    readonly property rect desktop: controller.desktop
    readonly property real shrink: Math.min(width / Math.max(1, desktop.width), height / Math.max(1, desktop.height))

    clip: true

    // qmllint disable unqualified
    component Part: Rectangle {
        property rect place

        x: Math.round((map.width - map.desktop.width * map.shrink) / 2 + (place.x - map.desktop.x) * map.shrink)
        y: Math.round((place.y - map.desktop.y) * map.shrink)
        width: Math.round(place.width * map.shrink)
        height: Math.round(place.height * map.shrink)
        border.width: 1
    }
    Repeater {
        model: map.controller.monitors

        Part {
            required property var modelData

            place: modelData.rect
            color: Colors.input
            border.color: modelData.primary ? Colors.accent : Colors.outline

            Label {
                anchors.bottom: parent.bottom
                anchors.horizontalCenter: parent.horizontalCenter
                anchors.bottomMargin: 2
                width: Math.min(implicitWidth, parent.width)
                text: parent.modelData.name
                color: Colors.textSecondary
                font.pointSize: Metrics.smallFontSize
                elide: Text.ElideRight
            }
        }
    }
    // qmllint enable unqualified
    Part {
        objectName: "mappedWindow"
        place: map.controller.window
        color: Qt.alpha(Colors.accent, 0.25)
        border.color: Colors.accentStrong
    }
    Part {
        place: Qt.rect(map.controller.cursor.x, map.controller.cursor.y, 6 / map.shrink, 6 / map.shrink)
        radius: 3
        color: Colors.warning
        border.width: 0
        transform: Translate {
            x: -3
            y: -3
        }
    }
}
