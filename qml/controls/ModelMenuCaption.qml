import QtQuick
import QtQuick.Controls
import QtQuick.Controls.impl
import Tandolin.API.Core.Themes
import Tandolin.API.Resources

// Picture, text and shortcut of a ModelMenuItem.
Item {
    id: caption

    required property var control
    readonly property real columnWidth: Metrics.markSize + control.spacing
    readonly property int columns: Math.max(1, (control.markColumn ? 1 : 0) + (control.pictureColumn ? 1 : 0))
    readonly property string shortcutText: control.subMenu ? "" : control.entry.shortcut ?? ""
    // Room for the arrow of a sub-menu, or for what stands in its column.
    readonly property real endRoom: shortcutText !== "" ? shortcut.implicitWidth + control.spacing : columnWidth

    implicitWidth: label.x + label.implicitWidth + 2 * control.spacing + endRoom
    implicitHeight: label.implicitHeight

    Image {
        x: caption.control.markColumn ? caption.columnWidth : 0
        anchors.verticalCenter: parent.verticalCenter
        width: Metrics.markSize
        height: Metrics.markSize
        sourceSize.width: width
        sourceSize.height: height
        fillMode: Image.PreserveAspectFit
        source: caption.control.entry.picture ?? ""
        opacity: caption.control.enabled ? 1 : 0.4
    }
    Mark {
        x: caption.control.markColumn ? caption.columnWidth : 0
        anchors.verticalCenter: parent.verticalCenter
        visible: String(caption.control.entry.picture ?? "") === ""
        name: caption.control.entry.mark ?? ""
        color: caption.control.enabled ? Colors.textSecondary : Colors.textDisabled
    }
    MnemonicLabel {
        id: label

        x: caption.columns * caption.columnWidth
        width: parent.width - x - caption.endRoom
        anchors.verticalCenter: parent.verticalCenter
        // Not the control's text: that of a sub-menu has lost its mnemonic at first.
        text: caption.control.entry.text ?? ""
        font: caption.control.font
        renderType: Metrics.renderType
        color: caption.control.enabled ? Colors.text : Colors.textDisabled
        elide: Text.ElideRight
    }
    Label {
        id: shortcut

        anchors.right: parent.right
        anchors.rightMargin: caption.control.spacing
        anchors.verticalCenter: parent.verticalCenter
        text: caption.shortcutText
        color: caption.control.enabled ? Colors.textSecondary : Colors.textDisabled
    }
}
