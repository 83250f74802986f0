import QtQuick

// The menu of a text that is edited. It opens at the mouse at once and goes when it is closed.
Menu {
    id: menu

    objectName: "editMenu"

    required property var control

    Component.onCompleted: popup()
    onClosed: destroy()

    MenuItem {
        text: qsTr("Cu&t")
        enabled: !menu.control.readOnly && menu.control.selectedText !== ""
        onTriggered: menu.control.cut()
    }
    MenuItem {
        text: qsTr("&Copy")
        enabled: menu.control.selectedText !== ""
        onTriggered: menu.control.copy()
    }
    MenuItem {
        text: qsTr("&Paste")
        enabled: menu.control.canPaste
        onTriggered: menu.control.paste()
    }
    MenuSeparator {}
    MenuItem {
        text: qsTr("Select &All")
        enabled: menu.control.length > 0
        onTriggered: menu.control.selectAll()
    }
}
