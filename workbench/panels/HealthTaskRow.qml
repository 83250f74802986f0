import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin.API.Controls
import Tandolin.API.Core.Themes
import Tandolin.API.Resources

// One kind of flaw and how many of them the drawing has.
ItemDelegate {
    id: row

    required property int index
    required property var model
    required property var owner

    objectName: "task:" + model.display
    width: ListView.view ? ListView.view.width : implicitWidth
    height: Metrics.rowHeight
    highlighted: ListView.isCurrentItem
    focusPolicy: Qt.NoFocus
    topPadding: 0
    bottomPadding: 0
    Accessible.name: qsTr("%1: %2").arg(model.display).arg(model.count)
    onPressed: {
        owner.forceActiveFocus();
        owner.currentIndex = index;
    }

    contentItem: RowLayout {
        spacing: Metrics.spacing
        enabled: row.model.isWanted

        ToolIcon {
            name: row.model.iconName
            size: Metrics.markSize
        }
        Label {
            Layout.fillWidth: true
            text: row.model.display
            textFormat: Text.PlainText
            elide: Text.ElideRight
        }
        Label {
            visible: row.model.count > 0
            text: row.model.count
            color: Colors.warning
            font.bold: true
        }
        Mark {
            visible: row.model.count === 0
            opacity: row.model.isWanted ? 1 : 0
            name: "check"
            color: Colors.textSecondary
        }
    }
}
