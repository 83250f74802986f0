import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin.API.Controls
import Tandolin.API.Core.Themes
import Tandolin.API.Resources

// A line that tells something, with a cross at its end.
RowLayout {
    id: note

    required property string mark
    required property string text
    required property string action

    signal dismissed

    spacing: Metrics.spacing

    Mark {
        name: note.mark
        color: note.mark === "warning" ? Colors.warning : Colors.textSecondary
    }
    Label {
        Layout.fillWidth: true
        text: note.text
        textFormat: Text.PlainText
        color: Colors.textSecondary
        wrapMode: Text.Wrap
    }
    IconButton {
        objectName: "dismiss"
        mark: "cross"
        text: note.action
        onClicked: note.dismissed()
    }
}
