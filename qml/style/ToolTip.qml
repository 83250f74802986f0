import QtQuick
import QtQuick.Templates as T
import Tandolin
import Tandolin.API.Core.Themes

T.ToolTip {
    id: control

    x: parent ? Math.round((parent.width - implicitWidth) / 2) : 0
    y: parent ? parent.height + 4 : 0
    implicitWidth: Math.min(360, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    margins: 4
    horizontalPadding: Metrics.padding
    verticalPadding: 3
    delay: Settings.tooltipDelay
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent | T.Popup.CloseOnReleaseOutsideParent
    font.pointSize: Metrics.smallFontSize
    font.hintingPreference: Metrics.hinting

    contentItem: Label {
        text: control.text
        font: control.font
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
    }
    background: PopupSurface {}
}
