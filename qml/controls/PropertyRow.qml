import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// One property of a PropertyList: its label and its editor.
FocusScope {
    id: row

    required property int index
    property var list
    // The list may show another model by the time that this row gives up the keyboard with a text to tell.
    property var source: null
    // What the model says of the property: read anew when it tells of a change.
    property var entry: list.read(index)
    readonly property real wantedLabelWidth: label.implicitWidth

    // A new object, so that every editor shows it, also when the value is the one that was read before.
    function refresh() {
        entry = list.read(index);
    }

    function commit(value) {
        if (value !== entry.value)
            list.commit(source, index, value);
    }

    // The text in the type that the property has.
    function commitText(text: string) {
        const number = Number(text) | 0;
        if (typeof entry.value !== "number")
            commit(text);
        else if (text.trim() !== "" && number === Number(text))
            commit(number);
        else
            refresh();
    }

    // To call when the row is about to go: a text that is still being typed is told.
    function finish() {
        loader.item?.finish?.();
    }

    objectName: "property:" + entry.label
    implicitHeight: Math.max(Metrics.rowHeight, editor.implicitHeight)

    Component.onCompleted: source = list.model

    HoverHandler {
        id: hover
    }
    ToolTip.text: entry.toolTip || (label.truncated ? entry.label : "")
    ToolTip.visible: Settings.tooltips && hover.hovered && ToolTip.text !== ""
    ToolTip.delay: Settings.tooltipDelay

    Label {
        id: label

        y: Math.round((Math.min(row.height, Metrics.controlHeight) - height) / 2)
        width: row.list.labelWidth
        text: row.entry.label
        elide: Text.ElideRight
    }
    RowLayout {
        id: editor

        x: row.list.labelWidth + Metrics.padding
        width: row.width - x
        spacing: 4

        Loader {
            id: loader

            Layout.fillWidth: true
            sourceComponent: {
                switch (row.entry.kind) {
                case "combo":
                    return combo;
                case "check":
                    return check;
                case "switch":
                    return toggle;
                case "image":
                    return image;
                default:
                    return field;
                }
            }
        }
        Button {
            objectName: "more"
            visible: row.entry.hasButton && row.entry.kind !== "image"
            implicitWidth: Metrics.controlHeight + 4
            horizontalPadding: 0
            text: "..."
            Accessible.name: row.entry.label
            onClicked: row.list.model.loadFile(row.index)
        }
    }

    // qmllint disable unqualified
    Component {
        id: combo

        ComboBox {
            id: box

            // The choices first: they have a say in which index is possible.
            function show() {
                model = row.entry.choices;
                currentIndex = row.entry.value;
            }

            objectName: "editor"
            enabled: !row.entry.readOnly
            Accessible.name: row.entry.label
            onActivated: index => row.commit(index)
            Component.onCompleted: show()

            Connections {
                target: row

                function onEntryChanged() {
                    box.show();
                }
            }
        }
    }
    Component {
        id: check

        CheckBox {
            objectName: "editor"
            enabled: !row.entry.readOnly
            checked: row.entry.value
            Accessible.name: row.entry.label
            onToggled: row.commit(row.entry.isBool ? checked : (checked ? 1 : 0))
        }
    }
    Component {
        id: toggle

        Switch {
            objectName: "editor"
            enabled: !row.entry.readOnly
            checked: row.entry.value
            Accessible.name: row.entry.label
            onToggled: row.commit(row.entry.isBool ? checked : (checked ? 1 : 0))
        }
    }
    Component {
        id: field

        TextField {
            id: edit

            readonly property string stored: String(row.entry.value)

            function show() {
                text = stored;
                cursorPosition = 0;
            }

            function finish() {
                if (text !== stored)
                    row.commitText(text);
            }

            function enter(event) {
                // Without a change Enter is the dialog's.
                event.accepted = text !== stored;
                finish();
            }

            objectName: "editor"
            readOnly: row.entry.readOnly
            Accessible.name: row.entry.label
            Component.onCompleted: show()
            onActiveFocusChanged: {
                if (!activeFocus)
                    finish();
            }
            Keys.onReturnPressed: event => enter(event)
            Keys.onEnterPressed: event => enter(event)
            Keys.onEscapePressed: event => {
                event.accepted = text !== stored;
                show();
            }

            Connections {
                target: row

                function onEntryChanged() {
                    edit.show();
                }
            }
        }
    }
    Component {
        id: image

        RowLayout {
            spacing: 4

            Rectangle {
                implicitWidth: 2 * Metrics.rowHeight
                implicitHeight: 2 * Metrics.rowHeight
                radius: Metrics.radius
                color: Colors.input
                border.color: Colors.outline

                Image {
                    objectName: "preview"
                    anchors.fill: parent
                    anchors.margins: 2
                    fillMode: Image.PreserveAspectFit
                    sourceSize.width: width
                    sourceSize.height: height
                    source: Icons.source(row.entry.value)
                    // The file may be written anew.
                    cache: false
                }
            }
            IconButton {
                objectName: "pick"
                enabled: !row.entry.readOnly
                mark: "folder"
                text: qsTr("Choose an image")
                onClicked: row.list.model.pickImage(row.index)
            }
            IconButton {
                objectName: "delete"
                enabled: !row.entry.readOnly && row.entry.value !== ""
                mark: "remove"
                text: qsTr("Remove the image")
                onClicked: row.list.model.deleteImage(row.index)
            }
            Item {
                Layout.fillWidth: true
            }
        }
    }
    // qmllint enable unqualified
}
