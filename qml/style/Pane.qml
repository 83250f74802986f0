import QtQuick
import QtQuick.Templates as T
import Tandolin.API.Core.Themes

T.Pane {
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: Metrics.margin
    background: Rectangle {
        color: Colors.background
    }
}
