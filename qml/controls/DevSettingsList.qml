import QtQuick
import QtQuick.Controls
import Tandolin.API.Controls
import Tandolin.API.Core.Themes
import Tandolin.API.Resources

// The switches and choices of a UIDevSettingsModel below a title that opens and closes them. Mouse, or keyboard: Space or
// Enter turns the title, Right opens, Left closes; Tab goes through the settings.
FocusScope {
    id: control

    // A UIDevSettingsModel.
    property var settings: null
    property string title: qsTr("Developer settings")
    // What is shown in place of settings when there are none.
    property string hint: qsTr("There are no settings here.")
    readonly property alias count: repeater.count
    readonly property bool expanded: settings?.expanded ?? false

    implicitWidth: 2 * Metrics.fieldWidth + Metrics.margin
    implicitHeight: column.height

    function expand(expanded: bool) {
        if (settings)
            settings.expanded = expanded;
    }

    function itemAt(row: int): Item {
        return repeater.itemAt(row);
    }

    function reveal(item: Item) {
        const top = item.mapToItem(column, 0, 0).y;
        if (top < flick.contentY)
            flick.contentY = top;
        else if (top + item.height > flick.contentY + flick.height)
            flick.contentY = top + item.height - flick.height;
    }

    Flickable {
        id: flick

        anchors.fill: parent
        contentHeight: column.height
        clip: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        ScrollBar.vertical: ScrollBar {}

        Column {
            id: column

            width: flick.width

            ItemDelegate {
                id: header

                objectName: "title"
                width: parent.width
                enabled: control.settings !== null
                focus: true
                leftPadding: Metrics.markSize + 2 * 4
                // A "&" in the title is no mnemonic.
                text: control.title.replace(/&/g, "&&")
                font.bold: true
                Accessible.name: control.title
                onClicked: control.expand(!control.expanded)
                Keys.onReturnPressed: clicked()
                Keys.onEnterPressed: clicked()
                Keys.onRightPressed: control.expand(true)
                Keys.onLeftPressed: control.expand(false)

                Mark {
                    x: 4
                    anchors.verticalCenter: parent.verticalCenter
                    name: control.expanded ? "chevron-down" : "chevron-right"
                    color: header.enabled ? Colors.text : Colors.textDisabled
                }
            }
            Label {
                objectName: "hint"
                visible: control.expanded && repeater.count === 0
                width: parent.width
                padding: Metrics.padding
                leftPadding: header.leftPadding
                text: control.hint
                color: Colors.textSecondary
                wrapMode: Text.Wrap
            }
            Repeater {
                id: repeater

                model: control.settings?.model ?? null
                // qmllint disable unqualified
                delegate: DevSettingRow {
                    visible: control.expanded
                    x: header.leftPadding
                    width: column.width - x
                    onActiveFocusChanged: {
                        if (activeFocus)
                            control.reveal(this);
                    }
                }
                // qmllint enable unqualified
            }
        }
    }
}
