import QtQuick
import QtQuick.Templates as T
import Tandolin.API.Core.Themes

T.GroupBox {
    id: control

    implicitWidth: Math.max(implicitContentWidth + leftPadding + rightPadding,
                            implicitLabelWidth + leftPadding + rightPadding)
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: Metrics.margin
    topPadding: Metrics.padding + (implicitLabelWidth > 0 ? implicitLabelHeight + Metrics.spacing : 0)
    font.pointSize: Metrics.fontSize
    font.hintingPreference: Metrics.hinting

    label: Label {
        width: control.width
        text: control.title
        font: control.font
        color: control.enabled ? Colors.textSecondary : Colors.textDisabled
        elide: Text.ElideRight
    }
    background: Rectangle {
        y: control.implicitLabelWidth > 0 ? control.implicitLabelHeight + 3 : 0
        width: parent.width
        height: parent.height - y
        radius: Metrics.radius
        color: "transparent"
        border.color: control.enabled ? Colors.border : Colors.separator
    }
}
