import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin.API.Controls
import Tandolin.API.Core.Themes
import Tandolin.API.Resources

// One layer in the list: a switch for its visibility, its colour and its name.
ItemDelegate {
    id: row

    required property int index
    required property string name
    required property color layerColor
    required property bool on
    required property bool frozen
    required property bool locked
    required property var owner

    signal switched(bool on)

    objectName: "layer:" + name
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

        CheckBox {
            objectName: "on:" + row.name
            focusPolicy: Qt.NoFocus
            checked: row.on
            padding: 0
            Accessible.name: qsTr("Show layer %1").arg(row.name)
            onToggled: row.switched(checked)
        }
        ColorSwatch {
            color: row.layerColor
        }
        Label {
            Layout.fillWidth: true
            text: row.name
            elide: Text.ElideRight
            color: row.on && !row.frozen ? Colors.text : Colors.textSecondary
        }
        Mark {
            visible: row.locked
            name: "lock"
            color: Colors.textSecondary
        }
    }
}
