import QtQuick
import QtQuick.Controls
import Tandolin.API.Core.Themes

// A field that marks a text that is no value and says why, with a unit beside the text.
TextField {
    id: control

    // Empty while the text is a value.
    property string error
    property string unit
    // What else stands at the right end.
    property real endWidth: 0

    rightPadding: Metrics.padding + (unitLabel.visible ? unitLabel.width + 4 : 0) + endWidth
    Accessible.description: error

    HoverHandler {
        id: hover
    }
    ToolTip.text: error
    ToolTip.visible: error !== "" && (activeFocus || hover.hovered)
    ToolTip.delay: 0

    Rectangle {
        objectName: "errorFrame"
        anchors.fill: parent
        visible: control.error !== ""
        color: "transparent"
        radius: Metrics.radius
        border.width: 2
        border.color: Colors.error
    }
    Label {
        id: unitLabel

        objectName: "unit"
        anchors.right: parent.right
        anchors.rightMargin: Metrics.padding + control.endWidth
        anchors.verticalCenter: parent.verticalCenter
        visible: text !== ""
        color: Colors.textSecondary
        text: control.unit
        textFormat: Text.PlainText
    }
}
