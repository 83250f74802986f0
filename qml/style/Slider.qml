import QtQuick
import QtQuick.Templates as T
import Tandolin.API.Core.Themes

T.Slider {
    id: control

    implicitWidth: horizontal ? Metrics.fieldWidth : Metrics.controlHeight
    implicitHeight: horizontal ? Metrics.controlHeight : Metrics.fieldWidth
    padding: 4

    handle: Rectangle {
        x: control.leftPadding + (control.horizontal ? control.visualPosition * (control.availableWidth - width)
                                                     : (control.availableWidth - width) / 2)
        y: control.topPadding + (control.horizontal ? (control.availableHeight - height) / 2
                                                    : control.visualPosition * (control.availableHeight - height))
        implicitWidth: Metrics.boxSize
        implicitHeight: Metrics.boxSize
        radius: width / 2
        color: {
            if (!control.enabled)
                return Colors.background;
            return control.pressed ? Colors.accent : control.hovered ? Colors.buttonHover : Colors.button;
        }
        border.width: control.enabled ? 2 : 1
        border.color: control.enabled ? Colors.accent : Colors.border

        FocusFrame {
            shown: control.visualFocus
            anchors.margins: -3
            radius: width / 2
        }
    }
    background: Rectangle {
        x: control.leftPadding + (control.horizontal ? 0 : (control.availableWidth - width) / 2)
        y: control.topPadding + (control.horizontal ? (control.availableHeight - height) / 2 : 0)
        width: control.horizontal ? control.availableWidth : 4
        height: control.horizontal ? 4 : control.availableHeight
        radius: 2
        color: control.enabled ? Colors.border : Colors.separator

        Rectangle {
            y: control.horizontal ? 0 : control.visualPosition * parent.height
            width: control.horizontal ? control.position * parent.width : parent.width
            height: control.horizontal ? parent.height : control.position * parent.height
            radius: 2
            color: control.enabled ? Colors.accent : Colors.border
        }
    }
}
