import QtQuick
import QtQuick.Templates as T
import Tandolin.API.Core.Themes
import Tandolin.API.Resources

T.MenuItem {
    id: control

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(Metrics.rowHeight, implicitContentHeight + topPadding + bottomPadding)
    horizontalPadding: Metrics.padding
    verticalPadding: 2
    spacing: Metrics.spacing
    font.pointSize: Metrics.fontSize
    font.hintingPreference: Metrics.hinting
    icon.width: Metrics.markSize
    icon.height: Metrics.markSize

    indicator: Mark {
        x: control.mirrored ? control.width - width - control.rightPadding : control.leftPadding
        y: (control.height - height) / 2
        visible: control.checked
        name: "check"
    }
    arrow: Mark {
        x: control.mirrored ? control.padding : control.width - width - 2
        y: (control.height - height) / 2
        visible: control.subMenu
        name: control.mirrored ? "chevron-left" : "chevron-right"
    }
    contentItem: Caption {
        readonly property real markRoom: Metrics.markSize + control.spacing
        readonly property real arrowRoom: control.subMenu ? Metrics.markSize + control.spacing : control.spacing

        leftPadding: control.mirrored ? arrowRoom : markRoom
        rightPadding: control.mirrored ? markRoom : arrowRoom
        control: control
    }
    background: Rectangle {
        x: 1
        width: control.width - 2
        color: control.enabled && (control.highlighted || control.down) ? Colors.hover : "transparent"
    }
}
