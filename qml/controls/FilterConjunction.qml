import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin.API.Core.Themes

// The conditions that hold together, below the word "or" unless they are the first ones.
Column {
    id: group

    required property int index
    required property var conjunctionModel
    // A FilterTagsModel.
    property var tagsModel: null
    // The whole filter: it can't be removed, and only a condition is wanted.
    property bool alone: false
    // The chip whose editor is open.
    property Item editedChip: null
    readonly property bool inviting: alone && count === 0
    readonly property int count: chips.count
    readonly property Item lastChip: count > 0 ? chips.itemAt(count - 1) : null

    signal conditionWanted(Item button)
    signal chipChosen(Item chip)

    // The neighbour takes the keyboard over.
    function remove(chip: FilterChip) {
        const row = chip.index;
        const hadKeyboard = chip.activeFocus;
        tagsModel.removeTag(index, row);
        if (hadKeyboard)
            ((count > 0 ? chips.itemAt(Math.min(row, count - 1)) : add) as Item).forceActiveFocus(Qt.TabFocusReason);
    }

    objectName: `conjunction${index}`
    spacing: Metrics.spacing

    RowLayout {
        visible: group.index > 0
        width: parent.width
        spacing: Metrics.spacing

        Rectangle {
            Layout.fillWidth: true
            implicitHeight: 1
            color: Colors.separator
        }
        Label {
            text: qsTr("or")
            color: Colors.textSecondary
        }
        Rectangle {
            Layout.fillWidth: true
            implicitHeight: 1
            color: Colors.separator
        }
    }
    Frame {
        id: frame

        width: parent.width
        padding: Metrics.padding
        Binding {
            target: frame.background
            property: "visible"
            value: !group.inviting
        }

        Column {
            width: parent.width
            spacing: Metrics.spacing

            Flow {
                id: flow

                visible: chips.count > 0
                width: parent.width
                spacing: Metrics.spacing

                Repeater {
                    id: chips

                    model: group.conjunctionModel
                    // qmllint disable unqualified
                    delegate: FilterChip {
                        id: chip

                        width: Math.min(implicitWidth, flow.width)
                        conjunction: group.index
                        edited: group.editedChip === chip
                        onClicked: group.chipChosen(chip)
                        onRemoved: group.remove(chip)
                    }
                    // qmllint enable unqualified
                }
            }
            RowLayout {
                width: parent.width
                spacing: 2

                Item {
                    visible: group.inviting
                    Layout.fillWidth: true
                }
                MarkButton {
                    id: add

                    objectName: `addCondition${group.index}`
                    highlighted: group.inviting
                    mark: "add"
                    text: qsTr("Add condition")
                    onClicked: group.conditionWanted(add)
                }
                Item {
                    Layout.fillWidth: true
                }
                IconButton {
                    objectName: `duplicateConjunction${group.index}`
                    visible: group.count > 0
                    mark: "copy"
                    text: qsTr("Duplicate these conditions as an alternative")
                    onClicked: group.tagsModel.duplicateConjunction(group.index)
                }
                IconButton {
                    objectName: `removeConjunction${group.index}`
                    visible: !group.inviting
                    mark: "remove"
                    text: qsTr("Remove these conditions")
                    onClicked: group.tagsModel.removeConjunction(group.index)
                }
            }
        }
    }
}
