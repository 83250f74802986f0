import QtQuick
import QtQuick.Controls
import QtQuick.Window
import Tandolin
import Tandolin.API.Core.Themes

// A tool tip in a window of its own: in a page as low as its controls one of the page would lie over them.
QtObject {
    id: tip

    // The combo.
    required property var control
    required property string text
    property bool wanted: false

    onWantedChanged: {
        if (!wanted)
            shown.hide();
    }

    readonly property Timer delay: Timer {
        objectName: "tipDelay"
        interval: Settings.tooltipDelay
        running: tip.wanted && tip.text !== ""
        onTriggered: {
            const screen = tip.control.screenOfBox();
            const below = tip.control.mapToGlobal(0, tip.control.height + 4);
            const fits = below.y + shown.height <= screen.virtualY + screen.height;
            shown.x = Math.max(screen.virtualX, Math.min(below.x, screen.virtualX + screen.width - shown.width));
            shown.y = fits ? below.y : tip.control.mapToGlobal(0, -4).y - shown.height;
            shown.show();
        }
    }
    readonly property Window window: Window {
        id: shown

        objectName: "tip"
        flags: Qt.ToolTip | Qt.FramelessWindowHint | Qt.NoDropShadowWindowHint | Qt.WindowDoesNotAcceptFocus
            | Qt.WindowTransparentForInput
        color: Colors.popup
        width: Math.ceil(label.implicitWidth) + 2 * Metrics.padding
        height: Math.ceil(label.implicitHeight) + 6

        Rectangle {
            anchors.fill: parent
            color: "transparent"
            border.color: Colors.outline
        }
        Label {
            id: label

            anchors.centerIn: parent
            font.pointSize: Metrics.smallFontSize
            text: tip.text
            textFormat: Text.PlainText
        }
    }
}
