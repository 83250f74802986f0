import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
// Brings the editors of values, which are known by their URLs alone.
import Tandolin.API.Controls.Private
import Tandolin.API.Core.Themes

// Edits the condition of one chip. Every change goes into the filter at once, so there is nothing to confirm.
Popup {
    id: editor

    property var tagsModel: null
    property var propertiesModel: null
    property FilterChip chip: null
    readonly property int propertyIndex: chip?.propertyIndex ?? -1
    readonly property var value: chip?.value
    readonly property bool inActiveWindow: parent?.Window.active ?? false
    property bool canPick: false

    // Another property is wanted for the chip, which is no longer edited then.
    signal propertyWanted(FilterChip chip)

    function edit(wanted: FilterChip) {
        chip = wanted;
        const url = propertiesModel.getComponentUrl(propertyIndex);
        valueEditor.setSource(url.url, {
            propertiesModel: propertiesModel,
            propertyIndex: propertyIndex,
            value: value,
            settings: url.settings
        });
        parent = wanted;
        open();
        lookForPick();
    }

    // The model doesn't tell when there is something to pick from.
    function lookForPick() {
        canPick = propertiesModel?.pipetEnabled() ?? false;
    }

    function pick() {
        const picked = propertiesModel.pipet(propertyIndex);
        if (picked.success)
            change(chip.operation, picked.value);
    }

    function change(operation: int, value: var) {
        tagsModel.editTag(chip.conjunction, chip.index, propertyIndex, operation, value);
    }

    objectName: "tagEditor"
    focus: true
    margins: 4
    x: chip?.leftInset ?? 0
    y: (chip?.height ?? 0) + 2
    width: Math.min(300, (parent?.Window.width ?? 300) - 2 * margins)

    // The tag went.
    onChipChanged: {
        if (!chip)
            close();
    }
    onValueChanged: {
        if (chip && valueEditor.item)
            valueEditor.item.value = value;
    }
    onInActiveWindowChanged: lookForPick()
    onOpened: valueEditor.item?.takeFocus()
    onClosed: {
        const last = chip;
        valueEditor.source = "";
        chip = null;
        last?.forceActiveFocus(Qt.PopupFocusReason);
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: Metrics.spacing

        HoverHandler {
            onHoveredChanged: editor.lookForPick()
        }
        MarkButton {
            readonly property string propertyName: {
                if (editor.propertyIndex < 0)
                    return "";
                return editor.propertiesModel.getFullPathName(editor.propertyIndex, true)
                    || editor.propertiesModel.getName(editor.propertyIndex);
            }

            objectName: "tagProperty"
            Layout.maximumWidth: parent.width
            mark: "chevron-down"
            text: propertyName.replace(/&/g, "&&")
            font.bold: true
            Accessible.name: qsTr("Property: %1").arg(propertyName)
            onClicked: {
                const chip = editor.chip;
                editor.close();
                editor.propertyWanted(chip);
            }
        }
        FilterOperatorCombo {
            Layout.fillWidth: true
            category: editor.chip?.operatorsCategory ?? 0
            operation: editor.chip?.operation ?? 0
            onChosen: operation => editor.change(operation, undefined)
        }
        Loader {
            id: valueEditor

            objectName: "valueEditor"
            Layout.fillWidth: true
        }
        RowLayout {
            Layout.topMargin: Metrics.spacing

            MarkButton {
                objectName: "removeTag"
                mark: "remove"
                text: qsTr("Remove")
                onClicked: editor.chip.removed()
            }
            Item {
                Layout.fillWidth: true
            }
            IconButton {
                objectName: "pickValue"
                visible: editor.propertiesModel?.hasPipet ?? false
                enabled: editor.canPick
                mark: "pipette"
                text: qsTr("Pick from the selected entity")
                onClicked: editor.pick()
            }
            Button {
                objectName: "finishTag"
                text: qsTr("Done")
                onClicked: editor.close()
            }
        }
    }

    Connections {
        target: valueEditor.item
        ignoreUnknownSignals: true

        function onEdited(newValue) {
            editor.change(editor.chip.operation, newValue);
        }
        function onAccepted() {
            editor.close();
        }
    }
}
