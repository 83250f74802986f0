import QtQuick
import Tandolin.API.Core.Themes

// What floats above a page.
Rectangle {
    radius: Metrics.radius
    color: Colors.popup
    border.color: Colors.outline
}
