import QtQuick
import QtQuick.Controls
import Tandolin
import Tandolin.API.Core.Themes

// One setting of a DevSettingsList: its name, and a switch or the choices.
FocusScope {
    id: row

    required property var model
    required property string itemName
    required property bool itemIsEnum
    required property var itemValues
    required property var itemCurrentValue

    objectName: "setting:" + itemName
    implicitHeight: Metrics.rowHeight + 4

    HoverHandler {
        id: hover
    }
    ToolTip.text: itemName
    ToolTip.visible: Settings.tooltips && hover.hovered && label.truncated
    ToolTip.delay: Settings.tooltipDelay

    Label {
        id: label

        objectName: "label"
        width: Math.max(0, editor.x - Metrics.spacing)
        height: parent.height
        verticalAlignment: Text.AlignVCenter
        text: row.itemName
        elide: Text.ElideRight

        TapHandler {
            enabled: !row.itemIsEnum
            onTapped: row.model.itemCurrentValue = !row.itemCurrentValue
        }
    }
    Loader {
        id: editor

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        width: row.itemIsEnum ? Math.min(Metrics.fieldWidth, row.width / 2) : implicitWidth
        focus: true
        sourceComponent: row.itemIsEnum ? choice : toggle
    }

    // qmllint disable unqualified
    Component {
        id: toggle

        Switch {
            objectName: "editor"
            focus: true
            checked: row.itemCurrentValue
            Accessible.name: row.itemName
            onToggled: row.model.itemCurrentValue = checked
        }
    }
    Component {
        id: choice

        ComboBox {
            objectName: "editor"
            focus: true
            model: row.itemValues
            currentIndex: row.itemCurrentValue
            Accessible.name: row.itemName
            onActivated: index => row.model.itemCurrentValue = index
        }
    }
    // qmllint enable unqualified
}
