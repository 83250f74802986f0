import QtQuick
import QtQuick.Templates as T
import Tandolin.API.Core.Themes

T.ToolSeparator {
    id: control

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    horizontalPadding: vertical ? 4 : 2
    verticalPadding: vertical ? 4 : 4

    contentItem: Rectangle {
        implicitWidth: control.vertical ? 1 : Metrics.markSize
        implicitHeight: control.vertical ? Metrics.markSize : 1
        color: Colors.border
    }
}
