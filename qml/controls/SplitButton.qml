import QtQuick
import QtQuick.Controls
import Tandolin
import Tandolin.API.Controls
import Tandolin.API.Core.Themes
import Tandolin.API.Resources

// A button that repeats what was chosen last in its menu, and an arrow that opens the menu. The model is a
// RememberLastActionMenuModel.
FocusScope {
    id: control

    property var model: null
    readonly property alias menu: menu

    implicitWidth: action.implicitWidth + arrow.implicitWidth - 1
    implicitHeight: Math.max(action.implicitHeight, arrow.implicitHeight)

    function openMenu() {
        menu.openByKey(control, 0, height + 1);
    }

    Keys.onDownPressed: openMenu()
    Keys.onReturnPressed: action.clicked()
    Keys.onEnterPressed: action.clicked()

    Button {
        id: action

        objectName: "action"
        width: control.width - arrow.width + 1
        height: control.height
        focus: true
        enabled: text !== "" || String(icon.source) !== ""
        text: control.model?.lastActionText ?? ""
        icon.source: Icons.source(control.model?.lastActionIcon ?? "")
        ToolTip.text: control.model?.lastActionTooltip ?? ""
        ToolTip.visible: Settings.tooltips && hovered && !down && ToolTip.text !== ""
        ToolTip.delay: Settings.tooltipDelay
        onClicked: control.model.executeLastAction()
    }
    Button {
        id: arrow

        objectName: "arrow"
        x: control.width - width
        width: 20
        implicitWidth: 20
        height: control.height
        focusPolicy: Qt.NoFocus
        down: pressed || menu.opened
        Accessible.name: qsTr("Open menu")
        onClicked: menu.popup(control, 0, control.height + 1)

        Mark {
            anchors.centerIn: parent
            name: "chevron-down"
        }
    }
    ModelMenu {
        id: menu

        objectName: "menu"
        model: control.model
    }
}
