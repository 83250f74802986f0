import QtQuick
import QtQuick.Templates as T
import Tandolin.API.Core.Themes

T.ToolBar {
    id: control

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(Metrics.controlHeight + 4, implicitContentHeight + topPadding + bottomPadding)
    padding: 2
    font.pointSize: Metrics.fontSize
    font.hintingPreference: Metrics.hinting
    background: Rectangle {
        color: Colors.ribbon

        Rectangle {
            width: parent.width
            height: 1
            y: control.position === T.ToolBar.Header ? parent.height - 1 : 0
            color: Colors.separator
        }
    }
}
