import QtQuick
import QtQuick.Controls
import Tandolin.API.Core.Themes
import Tandolin.API.Resources

// A button with a mark before its text, flat unless it is highlighted.
Button {
    id: control

    property string mark

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    leftPadding: Metrics.padding + Metrics.markSize + 4
    rightPadding: Metrics.padding + 2
    flat: !highlighted
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    Mark {
        x: Metrics.padding
        anchors.verticalCenter: parent.verticalCenter
        name: control.mark
        color: !control.enabled ? Colors.textDisabled : control.highlighted ? Colors.primaryText : Colors.textSecondary
    }
}
