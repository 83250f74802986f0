import QtQuick
import QtQuick.Templates as T
import Tandolin.API.Core.Themes

T.TabBar {
    id: control

    implicitWidth: contentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(implicitBackgroundHeight, contentHeight + topPadding + bottomPadding)

    contentItem: ListView {
        model: control.contentModel
        currentIndex: control.currentIndex
        orientation: ListView.Horizontal
        boundsBehavior: Flickable.StopAtBounds
        flickableDirection: Flickable.AutoFlickIfNeeded
        snapMode: ListView.SnapToItem
        highlightMoveDuration: 0
        highlightRangeMode: ListView.ApplyRange
        preferredHighlightBegin: 40
        preferredHighlightEnd: width - 40
    }
    background: Rectangle {
        implicitHeight: Metrics.controlHeight + 2
        color: Colors.tabStrip
    }
}
