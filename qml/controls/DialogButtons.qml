import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin.API.Core.Themes

// The row of buttons that ends a dialog. acceptText and rejectText may name a letter with "&".
RowLayout {
    id: row

    property alias acceptText: accept.text
    property alias acceptEnabled: accept.enabled
    property alias rejectText: reject.text
    readonly property bool rejectFocused: reject.activeFocus

    signal accepted
    signal rejected

    spacing: Metrics.spacing

    Item {
        Layout.fillWidth: true
    }
    Button {
        id: accept

        objectName: "accept"
        text: qsTr("&OK")
        highlighted: true
        onClicked: row.accepted()
    }
    Button {
        id: reject

        objectName: "reject"
        text: qsTr("&Cancel")
        onClicked: row.rejected()
    }
}
