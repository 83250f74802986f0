import QtQuick
import QtQuick.Templates as T
import Tandolin.API.Core.Themes

T.CheckDelegate {
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

    indicator: CheckMarkBox {
        x: control.mirrored ? control.width - width - control.rightPadding : control.leftPadding
        y: control.topPadding + (control.availableHeight - height) / 2
        control: control
        checkState: control.checkState
    }
    contentItem: Caption {
        leftPadding: control.mirrored ? 0 : control.indicator.width + control.spacing
        rightPadding: control.mirrored ? control.indicator.width + control.spacing : 0
        control: control
    }
    background: RowSurface {
        control: control
        highlighted: control.highlighted
    }
}
