import QtQuick
import QtQuick.Controls
import QtQuick.Templates as T
import Tandolin
import Tandolin.API.Core.Themes

// One condition of a filter, with "and" before it unless it is the first of its conjunction. Enter or a click chooses it;
// Delete, Backspace or the cross removes it.
T.AbstractButton {
    id: chip

    required property int index
    required property string tagString
    required property string tagTooltip
    required property int propertyIndex
    required property int operation
    required property int operatorsCategory
    required property var value
    property int conjunction: 0
    property bool edited: false
    // The value is still to be given.
    readonly property bool open: String(value ?? "").trim() === ""

    signal removed

    objectName: `chip${conjunction}_${index}`
    text: {
        if (propertyIndex < 0)
            return qsTr("choose a property");
        return open ? tagString.trim() + " \u2026" : tagString;
    }
    leftInset: index > 0 ? and.width + Metrics.spacing : 0
    leftPadding: leftInset + Metrics.padding + 3
    rightPadding: cross.width + 3
    implicitWidth: leftPadding + implicitContentWidth + rightPadding
    implicitHeight: Metrics.controlHeight
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    font.pointSize: Metrics.fontSize
    font.hintingPreference: Metrics.hinting
    Accessible.role: Accessible.Button
    Accessible.name: text

    ToolTip.text: tagTooltip
    ToolTip.visible: Settings.tooltips && hovered && !down && !edited && tagTooltip !== ""
    ToolTip.delay: Settings.tooltipDelay

    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Keys.onDeletePressed: removed()
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_Backspace;
        if (event.accepted)
            removed();
    }

    contentItem: Label {
        text: chip.text
        textFormat: Text.PlainText
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
        color: chip.propertyIndex < 0 ? Colors.textSecondary : Colors.text
    }
    background: Rectangle {
        radius: height / 2
        color: chip.edited ? Colors.selection : chip.down ? Colors.buttonPressed : chip.hovered ? Colors.buttonHover : Colors.button
        border.width: chip.visualFocus ? 2 : 1
        border.color: {
            if (chip.visualFocus)
                return Colors.focus;
            return chip.edited ? Colors.accent : chip.hovered ? Colors.outlineHover : Colors.border;
        }
    }

    Label {
        id: and

        visible: chip.index > 0
        anchors.verticalCenter: parent.verticalCenter
        text: qsTr("and")
        color: Colors.textSecondary
    }
    IconButton {
        id: cross

        objectName: "removeChip"
        x: chip.width - width - 2
        width: 20
        height: 20
        anchors.verticalCenter: parent.verticalCenter
        focusPolicy: Qt.NoFocus
        mark: "cross"
        markColor: hovered ? Colors.text : Colors.textSecondary
        text: qsTr("Remove this condition")
        onClicked: chip.removed()
    }
}
