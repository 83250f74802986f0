import QtQuick
import QtQuick.Templates as T
import Tandolin.API.Core.Themes

T.ScrollIndicator {
    id: control

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: 1

    contentItem: Rectangle {
        implicitWidth: 3
        implicitHeight: 3
        radius: 1.5
        color: Colors.border
        visible: control.size < 1
    }
}
