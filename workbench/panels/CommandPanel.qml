import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// What stands beside the drawing while a command runs: what the command asks for, values to type, its options. Enter
// tells the values that were typed, or else ends the command; Escape cancels it.
PanelPage {
    id: page

    required property var controller
    // Whether there are values that the command hasn't been told.
    property bool typed: false

    helpKey: "commands"
    padding: 0

    function enterValues() {
        const fields = controller.asksForPoint ? [x, y] : [length];
        if (!fields.every(field => field.commit()))
            return;
        typed = false;
        controller.enterValues();
    }

    function enter() {
        if (typed)
            enterValues();
        else
            controller.accept();
    }

    Keys.onReturnPressed: enter()
    Keys.onEnterPressed: enter()
    Keys.onEscapePressed: controller.closeClick()

    Connections {
        target: page.controller

        function onStepChanged() {
            page.typed = false;
        }
        function onRelativeChanged() {
            page.typed = false;
        }
    }

    component Value: UnitField {
        id: field

        Layout.fillWidth: true
        onTextEdited: page.typed = true
        // The field itself takes Enter for a text that is still being typed.
        Keys.onReturnPressed: event => take(event)
        Keys.onEnterPressed: event => take(event)

        function take(event) {
            event.accepted = true;
            if (error === "")
                page.enter();
        }

        // Up, Down and the wheel are typing, too.
        Connections {
            target: field.controller

            function onValueChanged() {
                if (field.activeFocus)
                    page.typed = true;
            }
        }
    }
    component Caption: Label {
        color: Colors.textSecondary
    }
    component PushButton: Button {
        Layout.fillWidth: true
        Layout.preferredWidth: 1
        Keys.onReturnPressed: clicked()
        Keys.onEnterPressed: clicked()
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        Loader {
            Layout.fillWidth: true
            Component.onCompleted: setSource(page.controller.titleSource, {
                controller: page.controller
            })
        }
        ScrollView {
            id: scroll

            Layout.fillWidth: true
            Layout.fillHeight: true
            contentWidth: availableWidth
            ScrollBar.horizontal.policy: ScrollBar.AlwaysOff

            ColumnLayout {
                x: Metrics.margin
                width: scroll.availableWidth - 2 * Metrics.margin
                spacing: Metrics.spacing

                Label {
                    objectName: "prompt"
                    Layout.fillWidth: true
                    Layout.topMargin: Metrics.spacing
                    text: page.controller.panelEnabled ? page.controller.prompt : qsTr("%1: click in the drawing. Esc ends the picking.").arg(page.controller.prompt)
                    wrapMode: Text.Wrap
                }
                ColumnLayout {
                    objectName: "commandValues"
                    enabled: page.controller.panelEnabled
                    spacing: Metrics.spacing

                    GridLayout {
                        visible: page.controller.asksForPoint
                        columns: 2
                        columnSpacing: Metrics.spacing
                        rowSpacing: 4

                        Caption {
                            text: qsTr("X")
                        }
                        Value {
                            id: x

                            objectName: "commandX"
                            focus: true
                            controller: page.controller.x
                            Accessible.name: qsTr("X")
                        }
                        Caption {
                            text: qsTr("Y")
                        }
                        Value {
                            id: y

                            objectName: "commandY"
                            controller: page.controller.y
                            Accessible.name: qsTr("Y")
                        }
                        CheckBox {
                            objectName: "commandRelative"
                            Layout.columnSpan: 2
                            enabled: page.controller.hasBase
                            text: qsTr("&From the last point")
                            checked: page.controller.relative
                            onToggled: page.controller.relative = checked
                        }
                    }
                    Value {
                        id: length

                        objectName: "commandLength"
                        visible: !page.controller.asksForPoint
                        controller: page.controller.length
                        Accessible.name: page.controller.prompt
                    }
                    RowLayout {
                        spacing: Metrics.spacing

                        PushButton {
                            objectName: "commandEnter"
                            text: qsTr("&Enter")
                            highlighted: true
                            onClicked: page.enterValues()
                        }
                        PushButton {
                            objectName: "commandPick"
                            text: qsTr("&Pick")
                            onClicked: page.controller.pick()
                        }
                    }
                    Rectangle {
                        Layout.fillWidth: true
                        implicitHeight: 1
                        color: Colors.separator
                    }
                    // qmllint disable unqualified
                    RowLayout {
                        spacing: Metrics.spacing

                        Repeater {
                            model: page.controller.options
                            delegate: PushButton {
                                required property string modelData

                                objectName: "option:" + modelData
                                enabled: page.controller.enabledOptions.includes(modelData)
                                text: modelData
                                onClicked: page.controller.chooseOption(modelData)
                            }
                        }
                    }
                    // qmllint enable unqualified
                    RowLayout {
                        spacing: Metrics.spacing

                        PushButton {
                            objectName: "commandFinish"
                            text: qsTr("F&inish")
                            onClicked: page.controller.accept()
                        }
                        PushButton {
                            objectName: "commandCancel"
                            text: qsTr("&Cancel")
                            onClicked: page.controller.closeClick()
                        }
                    }
                }
            }
        }
    }
}
