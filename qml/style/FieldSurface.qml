import QtQuick
import Tandolin.API.Core.Themes

// What a text is edited on.
Rectangle {
    required property Item control
    property bool hovered: false
    // What can only be read is no place to write on.
    property bool readOnly: false

    implicitWidth: Metrics.fieldWidth
    implicitHeight: Metrics.controlHeight
    radius: Metrics.radius
    color: control.enabled && !readOnly ? Colors.input : "transparent"
    border.width: control.activeFocus ? 2 : 1
    border.color: {
        if (!control.enabled)
            return Colors.separator;
        if (control.activeFocus)
            return Colors.focus;
        if (readOnly)
            return Colors.separator;
        return hovered ? Colors.outlineHover : Colors.outline;
    }
}
