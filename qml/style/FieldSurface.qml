import QtQuick
import Tandolin.API.Core.Themes

// What a text is edited on.
Rectangle {
    required property Item control
    property bool hovered: false

    implicitWidth: Metrics.fieldWidth
    implicitHeight: Metrics.controlHeight
    radius: Metrics.radius
    color: control.enabled ? Colors.input : "transparent"
    border.width: control.activeFocus ? 2 : 1
    border.color: {
        if (!control.enabled)
            return Colors.separator;
        if (control.activeFocus)
            return Colors.focus;
        return hovered ? Colors.outlineHover : Colors.outline;
    }
}
