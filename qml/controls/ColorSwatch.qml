import QtQuick
import Tandolin.API.Core.Themes

// A square of a colour; with a diagonal it stands for one that has no fixed value.
Rectangle {
    id: swatch

    property bool diagonal: false

    implicitWidth: Metrics.boxSize
    implicitHeight: Metrics.boxSize
    opacity: enabled ? 1 : 0.5
    border.color: Colors.outlineHover
    clip: true

    Rectangle {
        anchors.centerIn: parent
        visible: swatch.diagonal
        width: Math.hypot(swatch.width, swatch.height) - 2
        height: 1.5
        rotation: -Math.atan2(swatch.height, swatch.width) * 180 / Math.PI
        antialiasing: true
        color: Colors.error
    }
}
