import QtQuick
import QtQuick.Templates as T
import Tandolin.API.Core.Themes

T.Switch {
    id: control

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(Metrics.controlHeight, implicitContentHeight + topPadding + bottomPadding)
    horizontalPadding: 3
    spacing: Metrics.spacing
    font.pointSize: Metrics.fontSize
    font.hintingPreference: Metrics.hinting

    indicator: Rectangle {
        x: control.mirrored ? control.width - width - control.rightPadding : control.leftPadding
        y: control.topPadding + (control.availableHeight - height) / 2
        implicitWidth: 28
        implicitHeight: Metrics.boxSize
        radius: height / 2
        color: {
            if (!control.enabled)
                return "transparent";
            return control.checked ? Colors.accent : Colors.input;
        }
        border.color: {
            if (!control.enabled)
                return Colors.border;
            if (control.checked)
                return control.hovered ? Colors.accentStrong : Colors.accent;
            return control.hovered ? Colors.outlineHover : Colors.outline;
        }

        Rectangle {
            x: 3 + control.visualPosition * (parent.width - width - 6)
            width: 8
            height: 8
            radius: 4
            anchors.verticalCenter: parent.verticalCenter
            color: {
                if (!control.enabled)
                    return Colors.textDisabled;
                return control.checked ? Colors.accentText : Colors.textSecondary;
            }
        }
        FocusFrame {
            shown: control.visualFocus
            anchors.margins: -3
            radius: height / 2
        }
    }
    contentItem: Caption {
        leftPadding: control.mirrored ? 0 : control.indicator.width + control.spacing
        rightPadding: control.mirrored ? control.indicator.width + control.spacing : 0
        control: control
    }
}
