import QtQuick
import Tandolin.API.Core.Themes

// The ring around a control that has the keyboard.
Rectangle {
    required property bool shown

    anchors.fill: parent
    visible: shown
    color: "transparent"
    radius: Metrics.radius
    border.width: 2
    border.color: Colors.focus
}
