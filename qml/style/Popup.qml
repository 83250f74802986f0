import QtQuick
import QtQuick.Templates as T
import Tandolin.API.Core.Themes

T.Popup {
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: Metrics.margin
    font.pointSize: Metrics.fontSize
    font.hintingPreference: Metrics.hinting
    background: PopupSurface {}
}
