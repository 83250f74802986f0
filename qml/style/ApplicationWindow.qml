import QtQuick
import QtQuick.Templates as T
import Tandolin.API.Core.Themes

T.ApplicationWindow {
    color: Colors.background
    font.pointSize: Metrics.fontSize
}
