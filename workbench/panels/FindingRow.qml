import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin.API.Core.Themes

// One thing that was found amiss.
ItemDelegate {
    id: row

    required property int index
    required property var model
    required property var owner

    objectName: "finding:" + index
    width: ListView.view ? ListView.view.width : implicitWidth
    height: Metrics.rowHeight
    highlighted: ListView.isCurrentItem
    focusPolicy: Qt.NoFocus
    topPadding: 0
    bottomPadding: 0
    Accessible.name: model.display
    onPressed: {
        owner.forceActiveFocus();
        owner.currentIndex = index;
    }
    onDoubleClicked: owner.activated(index)

    contentItem: RowLayout {
        spacing: Metrics.margin

        Label {
            text: row.model.display ?? ""
            textFormat: Text.PlainText
        }
        Label {
            Layout.fillWidth: true
            text: row.model.detail ?? ""
            textFormat: Text.PlainText
            color: Colors.textSecondary
            elide: Text.ElideRight
        }
    }
}
