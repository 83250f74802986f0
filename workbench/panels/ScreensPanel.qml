import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// The monitors, where the program's window stands on them, and how the cursor's place is counted.
PanelPage {
    id: page

    required property var controller

    helpKey: "screens"

    // Not a child: the page's own window, which lies in one of the host's, would be taken for the popup's parent.
    readonly property PopupWindow converter: PopupWindow {
        objectName: "converter"
        core: page.controller.popup.core
        opener: convert
        onAboutToShow: page.controller.popup.hold(convert.mapToItem(null, Qt.rect(0, 0, convert.width, convert.height + 2)), Qt.size(page.converter.width, page.converter.height))

        ColumnLayout {
            spacing: Metrics.spacing

            Label {
                text: qsTr("Pixels of 96 to the inch:")
            }
            SpinBox {
                id: length

                objectName: "length"
                Layout.fillWidth: true
                to: 100000
                value: 100
                editable: true
                focus: true
            }
            InfoRows {
                objectName: "converted"
                Layout.fillWidth: true
                title: qsTr("Pixels of each monitor")
                // The monitors may change under an open popup.
                rows: page.controller.monitors.length > 0 ? page.controller.inEachMonitor(length.value) : []
            }
        }
    }

    Timer {
        interval: 100
        repeat: true
        running: page.Window.visibility !== Window.Hidden
        triggeredOnStart: true
        onTriggered: page.controller.followCursor()
    }
    ScrollView {
        id: scroll

        anchors.fill: parent
        contentWidth: availableWidth
        ScrollBar.horizontal.policy: ScrollBar.AlwaysOff

        ColumnLayout {
            width: scroll.availableWidth
            spacing: Metrics.spacing

            ScreensMap {
                objectName: "screensMap"
                Layout.fillWidth: true
                implicitHeight: 100
                controller: page.controller
            }
            RowLayout {
                Button {
                    id: convert

                    objectName: "convert"
                    text: qsTr("&Convert a Length")
                    onClicked: page.converter.toggle()
                }
                Item {
                    Layout.fillWidth: true
                }
                HelpButton {
                    key: page.helpKey
                }
            }
            InfoRows {
                Layout.fillWidth: true
                title: qsTr("Cursor")
                rows: page.controller.cursorRows
            }
            InfoRows {
                objectName: "windowRows"
                Layout.fillWidth: true
                title: qsTr("This window")
                rows: page.controller.windowRows
            }
            InfoRows {
                Layout.fillWidth: true
                title: qsTr("Monitors")
                rows: page.controller.monitorRows
            }
        }
    }
}
