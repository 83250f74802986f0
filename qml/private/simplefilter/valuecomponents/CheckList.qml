import QtQuick
import QtQuick.Controls
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// A list of texts to be checked, with a search when there are many. Space and a click check a row.
FocusScope {
    id: control

    property var texts: []
    // What a swatch beside each text shows: color, diagonal. None without swatches.
    property var swatches: []
    // The numbers of the checked texts, in order.
    property var chosen: []
    property string placeholder: qsTr("There is nothing to choose from.")
    // The numbers of the texts that are searched for.
    readonly property var found: {
        const wanted = search.text.trim().toLowerCase();
        return Array.from(texts.keys()).filter(row => texts[row].toLowerCase().includes(wanted));
    }

    signal edited(var rows)
    // Enter on a row, which the list doesn't hand on.
    signal accepted

    function toggle(row: int) {
        const others = chosen.filter(other => other !== row);
        edited(others.length < chosen.length ? others : others.concat(row).sort((a, b) => a - b));
    }

    // Brings a row into view that may have come just now.
    function show(row: int) {
        search.clear();
        list.currentIndex = row;
        list.view.positionViewAtIndex(row, ListView.Contain);
    }

    implicitWidth: 2 * Metrics.fieldWidth
    implicitHeight: column.height

    Column {
        id: column

        width: control.width
        spacing: Metrics.spacing

        SearchField {
            id: search

            objectName: "search"
            width: parent.width
            visible: control.texts.length > 8
            // The list has the rows that the keys go to.
            Keys.onDownPressed: list.forceActiveFocus()
        }
        PlainListView {
            id: list

            objectName: "list"
            width: parent.width
            height: Math.max(1, Math.min(8, control.texts.length)) * Metrics.rowHeight + 4
            focus: true
            model: control.found.map(row => control.texts[row])
            onActivated: control.accepted()
            Keys.onSpacePressed: {
                if (currentIndex >= 0 && currentIndex < count)
                    control.toggle(control.found[currentIndex]);
            }
            // qmllint disable unqualified
            delegate: CheckDelegate {
                id: row

                required property string modelData
                required property int index
                readonly property int number: control.found[index] ?? -1

                width: ListView.view.width
                highlighted: ListView.isCurrentItem
                checked: control.chosen.includes(number)
                nextCheckState: () => checkState
                focusPolicy: Qt.NoFocus
                Accessible.name: modelData
                onPressed: {
                    list.forceActiveFocus();
                    list.currentIndex = index;
                }
                onClicked: control.toggle(number)

                contentItem: Row {
                    leftPadding: row.indicator.width + row.spacing
                    spacing: row.spacing

                    ColorSwatch {
                        anchors.verticalCenter: parent.verticalCenter
                        visible: control.swatches.length > 0
                        diagonal: control.swatches[row.number]?.diagonal ?? false
                        color: control.swatches[row.number]?.color ?? "transparent"
                    }
                    Label {
                        anchors.verticalCenter: parent.verticalCenter
                        width: parent.width - x
                        text: row.modelData
                        textFormat: Text.PlainText
                        elide: Text.ElideRight
                    }
                }
            }
            // qmllint enable unqualified

            Label {
                objectName: "nothing"
                anchors.fill: parent
                anchors.margins: Metrics.padding
                visible: list.count === 0
                color: Colors.textSecondary
                text: control.texts.length > 0 ? qsTr("Nothing is found.") : control.placeholder
                elide: Text.ElideRight
            }
        }
        Label {
            objectName: "hint"
            width: parent.width
            visible: control.chosen.length === 0 && control.texts.length > 0
            color: Colors.textSecondary
            text: qsTr("Choose one or more.")
            elide: Text.ElideRight
        }
    }
}
