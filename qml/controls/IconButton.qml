import QtQuick
import QtQuick.Controls
import Tandolin
import Tandolin.API.Core.Themes
import Tandolin.API.Resources

// A flat button with a picture alone: one of the marks, a tool icon, or an icon. Its text is for the tool tip.
ToolButton {
    id: control

    property string mark
    property color markColor: enabled ? Colors.text : Colors.textDisabled
    property string toolIcon

    display: AbstractButton.IconOnly
    // A panel's buttons leave the keyboard where it is, but Tab reaches them.
    focusPolicy: Qt.TabFocus
    Accessible.name: text.replace("&", "")

    ToolTip.text: text.replace("&", "")
    ToolTip.visible: Settings.tooltips && hovered && !down && text !== ""
    ToolTip.delay: Settings.tooltipDelay

    Mark {
        anchors.centerIn: parent
        visible: control.mark !== ""
        name: control.mark
        color: control.markColor
    }

    ToolIcon {
        anchors.centerIn: parent
        name: control.toolIcon
        size: Metrics.markSize
    }
}
