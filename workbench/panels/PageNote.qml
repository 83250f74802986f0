import QtQuick

// Stands in for a page that can't be shown. It uses nothing but Qt Quick itself, since the style may be what is broken.
Item {
    id: note

    required property string page
    required property string reason
    required property string source
    required property color textColor
    required property color warningColor

    Flickable {
        anchors.fill: parent
        anchors.margins: 16
        contentHeight: column.height
        clip: true
        boundsBehavior: Flickable.StopAtBounds

        Column {
            id: column

            width: parent.width
            spacing: 8

            Text {
                objectName: "noteTitle"
                width: parent.width
                text: qsTr("This page can't be shown")
                color: note.warningColor
                font.pointSize: 10
                font.bold: true
                wrapMode: Text.Wrap
            }
            Text {
                width: parent.width
                text: note.page
                color: note.textColor
                opacity: 0.75
                font.pointSize: 9
                wrapMode: Text.WrapAnywhere
            }
            Text {
                objectName: "noteReason"
                width: parent.width
                text: note.reason
                color: note.textColor
                font.pointSize: 9
                wrapMode: Text.Wrap
            }
            Text {
                objectName: "noteSource"
                width: parent.width
                visible: text !== ""
                text: note.source
                textFormat: Text.PlainText
                color: note.textColor
                font.family: "monospace"
                font.pointSize: 9
                wrapMode: Text.WrapAnywhere
            }
        }
    }
}
