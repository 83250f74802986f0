import QtQuick
import QtQuick.Templates as T
import Tandolin.API.Core.Themes

// What a button is drawn on. A flat one shows only while it is used.
Rectangle {
    id: surface

    required property T.AbstractButton control
    property bool flat: false
    property bool primary: false
    readonly property bool pressed: control.down
    readonly property bool hovered: control.enabled && control.hovered

    implicitHeight: Metrics.controlHeight
    radius: Metrics.radius
    color: {
        if (primary && control.enabled)
            return pressed ? Colors.primaryPressed : hovered ? Colors.primaryHover : Colors.primary;
        if (control.checked)
            return pressed ? Colors.buttonPressed : Colors.selection;
        if (pressed)
            return Colors.buttonPressed;
        if (hovered)
            return flat ? Colors.hover : Colors.buttonHover;
        return flat || !control.enabled ? "transparent" : Colors.button;
    }
    border.width: flat && !control.checked ? 0 : 1
    border.color: {
        if (!control.enabled)
            return Colors.separator;
        if (control.checked)
            return Colors.accent;
        if (primary)
            return color;
        return hovered ? Colors.outlineHover : Colors.border;
    }

    FocusFrame {
        shown: surface.control.visualFocus
        border.color: surface.primary ? Colors.primaryText : Colors.focus
        anchors.margins: surface.primary ? 2 : 0
        border.width: surface.primary ? 1 : 2
    }
}
