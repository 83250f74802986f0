import QtQuick
import QtQuick.Templates as T
import Tandolin.API.Core.Themes
import Tandolin.API.Resources

// The square of a check box with its mark.
Rectangle {
    id: box

    required property T.AbstractButton control
    required property int checkState
    readonly property bool filled: checkState !== Qt.Unchecked

    implicitWidth: Metrics.boxSize
    implicitHeight: Metrics.boxSize
    radius: 2
    color: {
        if (!control.enabled)
            return "transparent";
        if (filled)
            return control.down ? Colors.primaryPressed : Colors.accent;
        return control.down ? Colors.buttonPressed : Colors.input;
    }
    border.color: {
        if (!control.enabled)
            return Colors.border;
        if (filled)
            return control.hovered ? Colors.accentStrong : Colors.accent;
        return control.hovered ? Colors.outlineHover : Colors.outline;
    }

    Mark {
        anchors.centerIn: parent
        visible: box.filled
        name: box.checkState === Qt.PartiallyChecked ? "dash" : "check"
        color: box.control.enabled ? Colors.accentText : Colors.textDisabled
        lineWidth: 1.8
    }

    FocusFrame {
        shown: box.control.visualFocus
        anchors.margins: -3
        radius: 4
    }
}
