import QtQuick
import QtQuick.Templates as T
import Tandolin.API.Core.Themes

T.ToolButton {
    id: control

    implicitWidth: Math.max(Metrics.controlHeight, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(implicitBackgroundHeight, implicitContentHeight + topPadding + bottomPadding)
    padding: 4
    spacing: Metrics.spacing
    font.pointSize: Metrics.fontSize
    font.hintingPreference: Metrics.hinting
    icon.width: Metrics.markSize
    icon.height: Metrics.markSize

    contentItem: Caption {
        control: control
        centred: true
    }
    background: ButtonSurface {
        control: control
        flat: true
    }
}
