import QtQuick
import QtQuick.Templates as T
import Tandolin.API.Core.Themes

T.RadioButton {
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
        implicitWidth: Metrics.boxSize
        implicitHeight: Metrics.boxSize
        radius: width / 2
        color: {
            if (!control.enabled)
                return "transparent";
            return control.down ? Colors.buttonPressed : Colors.input;
        }
        border.color: {
            if (!control.enabled)
                return Colors.border;
            if (control.checked)
                return control.hovered ? Colors.accentStrong : Colors.accent;
            return control.hovered ? Colors.outlineHover : Colors.outline;
        }

        Rectangle {
            anchors.centerIn: parent
            width: 6
            height: 6
            radius: 3
            visible: control.checked
            color: control.enabled ? Colors.accent : Colors.textDisabled
        }
        FocusFrame {
            shown: control.visualFocus
            anchors.margins: -3
            radius: width / 2
        }
    }
    contentItem: Caption {
        leftPadding: control.mirrored ? 0 : control.indicator.width + control.spacing
        rightPadding: control.mirrored ? control.indicator.width + control.spacing : 0
        control: control
    }
}
