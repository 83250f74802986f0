import QtQuick
import QtQuick.Templates as T
import Tandolin.API.Core.Themes

T.Label {
    color: enabled ? Colors.text : Colors.textDisabled
    linkColor: Colors.accentStrong
    font.pointSize: Metrics.fontSize
    font.hintingPreference: Metrics.hinting
    renderType: Metrics.renderType
}
