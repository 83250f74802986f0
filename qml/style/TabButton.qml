import QtQuick
import QtQuick.Templates as T
import Tandolin.API.Core.Themes

T.TabButton {
    id: control

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(implicitBackgroundHeight, implicitContentHeight + topPadding + bottomPadding)
    horizontalPadding: Metrics.margin
    verticalPadding: 4
    spacing: Metrics.spacing
    font.pointSize: Metrics.fontSize
    font.hintingPreference: Metrics.hinting
    icon.width: Metrics.markSize
    icon.height: Metrics.markSize

    contentItem: Caption {
        control: control
        centred: true
        color: {
            if (!control.enabled)
                return Colors.textDisabled;
            return control.checked || control.hovered ? Colors.text : Colors.textSecondary;
        }
    }
    background: Rectangle {
        implicitHeight: Metrics.controlHeight + 2
        color: {
            if (control.checked)
                return Colors.tabActive;
            return control.enabled && control.hovered ? Colors.hover : "transparent";
        }

        Rectangle {
            width: parent.width
            height: 2
            visible: control.checked
            color: control.enabled ? Colors.accent : Colors.border
        }
        FocusFrame {
            shown: control.visualFocus
            radius: 0
        }
    }
}
