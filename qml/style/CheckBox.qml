import QtQuick
import QtQuick.Templates as T
import Tandolin.API.Core.Themes

T.CheckBox {
    id: control

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(Metrics.controlHeight, implicitContentHeight + topPadding + bottomPadding)
    horizontalPadding: 3
    spacing: Metrics.spacing
    font.pointSize: Metrics.fontSize
    font.hintingPreference: Metrics.hinting

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
}
