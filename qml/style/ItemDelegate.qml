import QtQuick
import QtQuick.Templates as T
import Tandolin.API.Core.Themes

T.ItemDelegate {
    id: control

    implicitWidth: Math.max(implicitBackgroundWidth, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(implicitBackgroundHeight, implicitContentHeight + topPadding + bottomPadding)
    horizontalPadding: Metrics.padding
    verticalPadding: 2
    spacing: Metrics.spacing
    font.pointSize: Metrics.fontSize
    font.hintingPreference: Metrics.hinting
    icon.width: Metrics.markSize
    icon.height: Metrics.markSize

    contentItem: Caption {
        control: control
    }
    background: RowSurface {
        control: control
        highlighted: control.highlighted
    }
}
