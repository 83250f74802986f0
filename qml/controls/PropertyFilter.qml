import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// A filter to edit: conditions that hold together in a frame, frames that are alternatives below each other. Every change
// goes into the tags at once.
FocusScope {
    id: control

    // A FilterTagsModel.
    property var tagsModel: null
    // The AbstractFilterPropertiesModel that the tags mean.
    property var propertiesModel: null
    // A FilterPopupController; one of its own unless the host has one.
    property var popup: FilterPopupController {}
    // A FilterManagerButtonsController; null when filters aren't kept.
    property var buttons: null
    // What the filter finds.
    property string status
    // Kept by its conjunctions: none of them has a condition.
    property bool isEmpty: true
    property bool ready: false

    function addCondition(conjunction: int, button: Item) {
        properties.ask(button, property => {
            tagsModel.addTag(conjunction, property, propertiesModel.getDefaultOperation(property),
                propertiesModel.getDefaultValue(property));
            editor.edit(groups.itemAt(conjunction).lastChip);
        });
    }

    function editChip(chip: FilterChip) {
        if (chip.propertyIndex >= 0)
            editor.edit(chip);
        else
            changeProperty(chip);
    }

    function changeProperty(chip: FilterChip) {
        properties.ask(chip, property => {
            if (property !== chip.propertyIndex)
                tagsModel.editTag(chip.conjunction, chip.index, property, propertiesModel.getDefaultOperation(property),
                    propertiesModel.getDefaultValue(property));
            editor.edit(chip);
        });
    }

    function count() {
        isEmpty = true;
        for (let row = 0; row < groups.count; ++row)
            isEmpty = isEmpty && (groups.itemAt(row)?.count ?? 0) === 0;
    }

    // What has the keyboard comes into view.
    function showItem(item: Item) {
        let parent = item;
        while (parent && parent !== column)
            parent = parent.parent;
        if (!parent)
            return;
        const top = item.mapToItem(column, 0, 0).y;
        flick.contentY = Math.max(Math.min(flick.contentY, top), top + item.height - flick.height);
    }

    function link() {
        if (!ready)
            return;
        if (popup && propertiesModel)
            popup.propertiesModel = propertiesModel;
        if (buttons && propertiesModel && tagsModel) {
            buttons.setTagsModel(tagsModel);
            buttons.setPropertiesModel(propertiesModel);
        }
    }

    implicitWidth: 280
    implicitHeight: layout.implicitHeight
    Component.onCompleted: {
        ready = true;
        link();
    }
    onTagsModelChanged: link()
    onPropertiesModelChanged: link()
    onPopupChanged: link()
    onButtonsChanged: link()

    ColumnLayout {
        id: layout

        anchors.fill: parent
        spacing: Metrics.spacing

        RowLayout {
            Layout.fillWidth: true
            spacing: 2

            FilterButtons {
                visible: control.buttons !== null
                controller: control.buttons
                canSave: !control.isEmpty
            }
            Item {
                Layout.fillWidth: true
            }
            MarkButton {
                objectName: "clearFilter"
                enabled: !control.isEmpty || groups.count > 1
                mark: "cross"
                text: qsTr("Clear")
                onClicked: control.tagsModel.clear()
            }
        }
        Flickable {
            id: flick

            Layout.fillWidth: true
            Layout.fillHeight: true
            implicitHeight: column.implicitHeight
            contentHeight: column.implicitHeight
            clip: true
            boundsBehavior: Flickable.StopAtBounds
            ScrollBar.vertical: ScrollBar {
                id: bar
            }

            Column {
                id: column

                width: flick.width - (bar.size < 1 ? bar.width : 0)
                spacing: Metrics.spacing

                PlaceholderMessage {
                    objectName: "emptyFilter"
                    visible: control.isEmpty && groups.count === 1
                    x: (parent.width - width) / 2
                    width: Math.min(260, parent.width)
                    mark: "filter"
                    text: qsTr("Find what you need by its properties.\nAdd a condition, like \u201clayer is Walls\u201d; add more to narrow it down.")
                }
                Repeater {
                    id: groups

                    model: control.tagsModel
                    onItemAdded: control.count()
                    onItemRemoved: control.count()
                    // qmllint disable unqualified
                    delegate: FilterConjunction {
                        width: column.width
                        tagsModel: control.tagsModel
                        alone: groups.count === 1
                        editedChip: editor.chip
                        onCountChanged: control.count()
                        onConditionWanted: button => control.addCondition(index, button)
                        onChipChosen: chip => control.editChip(chip)
                    }
                    // qmllint enable unqualified
                }
                MarkButton {
                    objectName: "addAlternative"
                    visible: !control.isEmpty
                    mark: "add"
                    text: qsTr("Add alternative (or)")
                    onClicked: control.tagsModel.addConjunction()
                }
            }
        }
        Label {
            objectName: "filterStatus"
            Layout.fillWidth: true
            visible: text !== ""
            text: control.status
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            color: Colors.textSecondary
        }
    }

    FilterPropertyPopup {
        id: properties

        controller: control.popup
    }
    FilterTagEditor {
        id: editor

        tagsModel: control.tagsModel
        propertiesModel: control.propertiesModel
        onPropertyWanted: chip => control.changeProperty(chip)
    }
    Connections {
        target: control.tagsModel ?? null

        // The place that a property was wanted for may be another one, or gone.
        function onModelReset() {
            properties.close();
        }
        function onRowsRemoved() {
            properties.close();
        }
        function onRowsInserted() {
            properties.close();
        }
    }
    Connections {
        target: control.Window.window

        function onActiveFocusItemChanged() {
            if (control.activeFocus)
                control.showItem(control.Window.activeFocusItem);
        }
    }
}
