import QtQuick
import QtQuick.Controls.impl
import QtQuick.Templates as T
import Tandolin.API.Core.Themes

// Icon and text of a button in one row; "&" before a letter underlines it.
Item {
    id: root

    required property T.AbstractButton control
    property color color: control.enabled ? Colors.text : Colors.textDisabled
    property bool centred: false
    property real leftPadding: 0
    property real rightPadding: 0
    readonly property bool showsIcon: control.display !== T.AbstractButton.TextOnly && icon.status === Image.Ready
    readonly property bool showsText: control.display !== T.AbstractButton.IconOnly && control.text !== ""
    readonly property real gap: showsIcon && showsText ? control.spacing : 0
    readonly property real iconWidth: showsIcon ? icon.width + gap : 0

    readonly property real contentWidth: iconWidth + (showsText ? label.implicitWidth : 0)
    readonly property real room: Math.max(0, width - leftPadding - rightPadding)

    implicitWidth: contentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(showsIcon ? icon.height : 0, showsText ? label.implicitHeight : 0)

    ColorImage {
        id: icon

        visible: root.showsIcon
        x: root.leftPadding + (root.centred ? Math.round(Math.max(0, (root.room - root.contentWidth) / 2)) : 0)
        anchors.verticalCenter: parent.verticalCenter
        width: root.control.icon.width
        height: root.control.icon.height
        sourceSize.width: width
        sourceSize.height: height
        source: root.control.icon.source
        color: root.control.icon.color
        opacity: root.control.enabled ? 1 : 0.4
    }

    MnemonicLabel {
        id: label

        visible: root.showsText
        x: icon.x + root.iconWidth
        width: Math.max(0, root.width - root.rightPadding - x)
        anchors.verticalCenter: parent.verticalCenter
        text: root.control.text
        font: root.control.font
        renderType: Metrics.renderType
        color: root.color
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
    }
}
