import QtQuick
import QtQuick.Templates as T
import Tandolin.API.Core.Themes

T.Frame {
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: Metrics.margin
    background: Rectangle {
        radius: Metrics.radius
        color: "transparent"
        border.color: Colors.border
    }
}
