import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin.API.Core.Themes
import Tandolin.API.Resources

// One row of a branch: what it stands for, how many entities are in it, and whether it can be gone into.
ItemDelegate {
    id: row

    required property int index
    required property var model
    required property var owner

    objectName: "branch:" + model.display
    width: ListView.view ? ListView.view.width : implicitWidth
    height: Metrics.rowHeight
    highlighted: ListView.isCurrentItem
    focusPolicy: Qt.NoFocus
    topPadding: 0
    bottomPadding: 0
    onPressed: {
        owner.forceActiveFocus();
        owner.currentIndex = index;
    }
    onDoubleClicked: owner.activated(index)

    contentItem: RowLayout {
        spacing: Metrics.spacing

        Mark {
            name: row.model.mark
            color: Colors.textSecondary
        }
        Label {
            Layout.fillWidth: true
            text: row.model.display
            textFormat: Text.PlainText
            elide: Text.ElideRight
            color: row.model.disabled ? Colors.textSecondary : Colors.text
        }
        Label {
            visible: row.model.count > 0
            text: row.model.count
            color: Colors.textSecondary
        }
        Mark {
            opacity: row.model.hasChildren ? 1 : 0
            name: "chevron-right"
            color: Colors.textSecondary
        }
    }
}
