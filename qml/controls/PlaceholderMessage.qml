import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin.API.Core.Themes
import Tandolin.API.Resources

// What a page shows in place of rows that it doesn't have.
ColumnLayout {
    property alias mark: picture.name
    property alias text: message.text

    spacing: Metrics.spacing

    Mark {
        id: picture

        Layout.alignment: Qt.AlignHCenter
        implicitWidth: 2 * Metrics.markSize
        implicitHeight: 2 * Metrics.markSize
        visible: name !== ""
        color: Colors.textSecondary
        lineWidth: 1
    }
    Label {
        id: message

        Layout.fillWidth: true
        Layout.maximumWidth: 260
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        color: Colors.textSecondary
    }
}
