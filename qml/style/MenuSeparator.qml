import QtQuick
import QtQuick.Templates as T
import Tandolin.API.Core.Themes

T.MenuSeparator {
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    verticalPadding: 3
    horizontalPadding: Metrics.padding

    contentItem: Rectangle {
        implicitWidth: 100
        implicitHeight: 1
        color: Colors.separator
    }
}
