import QtQuick
import QtQuick.Templates as T
import Tandolin.API.Core.Themes

T.ScrollBar {
    id: control

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: 2
    minimumSize: Math.min(1, 24 / Math.max(1, horizontal ? width : height))
    visible: policy === T.ScrollBar.AlwaysOn || (policy !== T.ScrollBar.AlwaysOff && size < 1)

    contentItem: Rectangle {
        implicitWidth: 7
        implicitHeight: 7
        radius: 3.5
        color: {
            if (control.pressed)
                return Colors.accent;
            return control.hovered ? Colors.outlineHover : Colors.border;
        }
    }
}
