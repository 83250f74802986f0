import QtQuick
import QtQuick.Templates as T
import Tandolin.API.Core.Themes

T.Menu {
    id: control

    implicitWidth: Math.max(implicitBackgroundWidth, contentWidth + leftPadding + rightPadding)
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    margins: 0
    overlap: 1
    padding: 1
    verticalPadding: 3
    font.pointSize: Metrics.fontSize
    font.hintingPreference: Metrics.hinting

    delegate: MenuItem {}
    contentItem: ListView {
        implicitWidth: {
            let width = 0;
            for (let row = 0; row < count; ++row)
                width = Math.max(width, control.itemAt(row)?.implicitWidth ?? 0);
            return width;
        }
        implicitHeight: contentHeight
        model: control.contentModel
        interactive: Window.window ? contentHeight + control.topPadding + control.bottomPadding > control.height : false
        clip: true
        currentIndex: control.currentIndex
        boundsBehavior: Flickable.StopAtBounds

        T.ScrollIndicator.vertical: ScrollIndicator {}
    }
    background: PopupSurface {
        implicitWidth: 140
    }
}
