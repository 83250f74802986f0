import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin.API.Core.Themes

// The title line of a panel, with a button for help and one for the panel's menu.
RowLayout {
    id: control

    property string title
    // A PanelMenuModel.
    property var menuModel: null
    // The page of the manual, if there is one.
    property string helpKey

    spacing: Metrics.spacing

    Label {
        Layout.fillWidth: true
        Layout.minimumHeight: Metrics.controlHeight
        text: control.title
        font.bold: true
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
    }
    HelpButton {
        objectName: "panelHelpButton"
        key: control.helpKey
    }
    IconButton {
        id: button

        objectName: "panelMenuButton"
        visible: (control.menuModel ?? null) !== null
        mark: "more"
        text: qsTr("Panel menu")
        down: pressed || menu.opened
        // Reached by Down as a menu button is.
        Keys.onDownPressed: menu.openByKey(button, 0, button.height + 1)
        onClicked: {
            if (visualFocus)
                menu.openByKey(button, 0, button.height + 1);
            else
                menu.popup(button, 0, button.height + 1);
        }
    }
    ModelMenu {
        id: menu

        objectName: "panelMenu"
        model: control.menuModel

        function read(index): var {
            const value = role => model.data(index, role);
            return {
                kind: "text",
                text: value(256),
                named: false,
                enabled: !value(259),
                checkable: value(257),
                checked: value(258)
            };
        }
        function run(index) {
            model.menuItemClicked(index.row);
        }
    }
}
