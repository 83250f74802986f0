import QtQuick
import QtQuick.Templates as T
import Tandolin.API.Core.Themes

// What a row of a list is drawn on.
Rectangle {
    id: surface

    required property T.AbstractButton control
    property bool highlighted: false

    implicitWidth: Metrics.fieldWidth
    implicitHeight: Metrics.rowHeight
    color: {
        if (!control.enabled)
            return "transparent";
        if (highlighted)
            return Colors.selection;
        return control.down || control.hovered ? Colors.hover : "transparent";
    }

    FocusFrame {
        shown: surface.control.visualFocus
        radius: 0
        border.width: 1
    }
}
