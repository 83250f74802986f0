import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// Chooses a colour of the drawing. The host ends the dialog at accepted() and rejected(), and shows the title.
PanelPage {
    id: page

    required property var controller
    readonly property string title: qsTr("Select Colour")
    readonly property int hoveredIndex: Math.max(hues.hoveredIndex, standard.hoveredIndex, greys.hoveredIndex)

    // The field whose text is no value; it has to be mended first.
    property Item badField: null
    readonly property bool canFinish: controller.hasChoice && !badField

    signal accepted
    signal rejected

    Component.onCompleted: ([standard, greys].find(grid => grid.position >= 0) ?? hues).forceActiveFocus()
    Keys.onEscapePressed: rejected()
    Keys.onReturnPressed: finish()
    Keys.onEnterPressed: finish()

    // Enter presses the button that has the keyboard, or else the default one.
    function finish() {
        if (buttons.rejectFocused)
            rejected();
        else if (canFinish)
            accepted();
    }

    function setChannel(channel: string, value: int) {
        const now = {
            red: Math.round(controller.color.r * 255),
            green: Math.round(controller.color.g * 255),
            blue: Math.round(controller.color.b * 255)
        };
        now[channel] = value;
        controller.setChannels(now.red, now.green, now.blue);
    }

    component Grid: ColorGrid {
        controller: page.controller
        onActivated: page.finish()
    }
    component Special: Button {
        required property int colorIndex

        checkable: true
        autoExclusive: true
        checked: page.controller.index === colorIndex
        onToggled: {
            if (checked)
                page.controller.index = colorIndex;
        }
    }
    component Swatch: ColorSwatch {
        implicitWidth: 44
        implicitHeight: Metrics.controlHeight
        diagonal: color.a === 0
    }
    component Channel: RowLayout {
        id: channel

        required property string name
        required property string label
        required property real share
        // -1 while there is no colour to show.
        readonly property int value: page.controller.color.a === 0 ? -1 : Math.round(share * 255)

        spacing: Metrics.spacing

        Label {
            Layout.preferredWidth: 40
            text: channel.label
        }
        Slider {
            objectName: channel.name + "Slider"
            Layout.fillWidth: true
            to: 255
            stepSize: 1
            value: Math.max(0, channel.value)
            Accessible.name: channel.label
            onMoved: page.setChannel(channel.name, value)
        }
        TextField {
            id: field

            objectName: channel.name
            Layout.preferredWidth: 56
            horizontalAlignment: TextInput.AlignRight
            validator: IntValidator {
                bottom: 0
                top: 255
            }
            color: page.badField === field ? Colors.error : Colors.text
            Accessible.name: channel.label
            onTextEdited: {
                page.badField = acceptableInput ? null : field;
                if (acceptableInput)
                    page.setChannel(channel.name, Number(text));
            }
            onActiveFocusChanged: {
                page.badField = null;
                show();
            }
            Component.onCompleted: show()
            Keys.onUpPressed: page.setChannel(channel.name, channel.value + 1)
            Keys.onDownPressed: page.setChannel(channel.name, channel.value - 1)

            // What is typed stays as it is, as long as it says the same.
            function show() {
                if (text === "" || Number(text) !== channel.value)
                    text = channel.value < 0 ? "" : channel.value;
            }
        }
        onValueChanged: field.show()
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: Metrics.spacing

        RowLayout {
            spacing: Metrics.spacing

            Label {
                text: qsTr("Present")
            }
            Swatch {
                objectName: "formerSwatch"
                color: page.controller.formerColor
            }
            Label {
                objectName: "formerName"
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                text: page.controller.formerName || qsTr("none of these")
                color: Colors.textSecondary
                elide: Text.ElideRight
            }
            Label {
                text: qsTr("New")
            }
            Swatch {
                objectName: "newSwatch"
                visible: page.controller.hasChoice
                color: page.controller.color
            }
            Label {
                objectName: "newName"
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                text: page.controller.hasChoice ? page.controller.name : qsTr("Choose a colour")
                font.bold: true
                elide: Text.ElideRight
            }
        }
        Label {
            Layout.topMargin: 4
            text: page.hoveredIndex < 0 ? qsTr("Index colours") : qsTr("Index colours: %1").arg(page.controller.nameOf(page.hoveredIndex))
            font.bold: true
        }
        Grid {
            id: hues

            objectName: "hues"
            columns: 24
            // A column a hue: from dark to full, and on to the paler ones.
            indices: Array.from({
                length: 240
            }, (_, place) => 10 + 10 * (place % 24) + [8, 6, 4, 2, 0, 1, 3, 5, 7, 9][Math.floor(place / 24)])
            Accessible.name: qsTr("Index colours")
        }
        RowLayout {
            Layout.topMargin: 4
            spacing: 2 * Metrics.margin

            Grid {
                id: standard

                objectName: "standard"
                cellSize: 22
                outlined: true
                indices: [1, 2, 3, 4, 5, 6, 7, 8, 9]
                Accessible.name: qsTr("Standard colours")
            }
            Grid {
                id: greys

                objectName: "greys"
                cellSize: 22
                outlined: true
                indices: [250, 251, 252, 253, 254, 255]
                Accessible.name: qsTr("Greys")
            }
        }
        RowLayout {
            Layout.topMargin: 4
            visible: page.controller.hasByLayer || page.controller.hasNone
            spacing: Metrics.spacing

            Special {
                objectName: "byLayer"
                visible: page.controller.hasByLayer
                colorIndex: 256
                text: page.controller.byLayerName
            }
            Special {
                objectName: "byBlock"
                visible: page.controller.hasByBlock
                colorIndex: 0
                text: page.controller.nameOf(0)
            }
            Special {
                objectName: "none"
                visible: page.controller.hasNone
                colorIndex: 257
                text: page.controller.nameOf(257)
            }
        }
        ColumnLayout {
            Layout.topMargin: 4
            visible: page.controller.hasTrueColors
            spacing: 2

            Label {
                text: qsTr("True colour")
                font.bold: true
            }
            Channel {
                name: "red"
                label: qsTr("Red")
                share: page.controller.color.r
            }
            Channel {
                name: "green"
                label: qsTr("Green")
                share: page.controller.color.g
            }
            Channel {
                name: "blue"
                label: qsTr("Blue")
                share: page.controller.color.b
            }
            RowLayout {
                spacing: Metrics.spacing

                Label {
                    Layout.preferredWidth: 40
                    text: qsTr("Hex")
                }
                TextField {
                    id: hex

                    readonly property string wanted: page.controller.color.a === 0 ? "" : String(page.controller.color)

                    objectName: "hex"
                    Layout.preferredWidth: 90
                    color: page.badField === hex ? Colors.error : Colors.text
                    Accessible.name: qsTr("Colour as hexadecimal number")
                    onTextEdited: page.badField = page.controller.setHex(text) ? null : hex
                    onWantedChanged: show()
                    onActiveFocusChanged: {
                        page.badField = null;
                        show();
                    }
                    Component.onCompleted: show()

                    function show() {
                        if (!activeFocus)
                            text = wanted;
                    }
                }
                Item {
                    Layout.fillWidth: true
                }
            }
        }
        Item {
            Layout.fillHeight: true
        }
        DialogButtons {
            id: buttons

            Layout.fillWidth: true
            acceptEnabled: page.canFinish
            onAccepted: page.accepted()
            onRejected: page.rejected()
        }
    }
}
