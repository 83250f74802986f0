import QtQuick
import QtQuick.Controls
import Tandolin.API.Core.Themes

// The properties of a PropertiesListModel below its title, each with an editor. A change is told to the model at once, a
// text by Enter or when the keyboard goes elsewhere; Escape brings the former text back.
FocusScope {
    id: control

    property var model: null
    readonly property alias count: repeater.count
    property real labelWidth: 0

    implicitWidth: 2 * Metrics.fieldWidth + Metrics.margin
    implicitHeight: column.height

    function read(row: int): var {
        const at = model.index(row, 0);
        const value = role => model.data(at, role);
        return {
            label: value(0),
            value: value(1),
            hasButton: value(2),
            readOnly: value(3),
            isBool: value(4),
            kind: value(5) ? "image" : value(6) ? "combo" : value(7) ? "check" : value(8) ? "switch" : "text",
            choices: value(10),
            toolTip: value(11)
        };
    }

    // The model doesn't tell of it, but the handler may have changed other rows or this one.
    function commit(row: int, value) {
        model.valueChanged(value, row);
        repeater.itemAt(row)?.refresh();
    }

    function itemAt(row: int): Item {
        return repeater.itemAt(row);
    }

    // One column for all labels, at most two fifths of the width.
    function measure() {
        let wanted = 0;
        for (let row = 0; row < repeater.count; ++row)
            wanted = Math.max(wanted, (repeater.itemAt(row) as PropertyRow)?.wantedLabelWidth ?? 0);
        labelWidth = Math.min(Math.ceil(wanted), Math.floor(0.4 * width));
    }

    function reveal(item: Item) {
        const top = item.mapToItem(column, 0, 0).y;
        if (top < flick.contentY)
            flick.contentY = top;
        else if (top + item.height > flick.contentY + flick.height)
            flick.contentY = top + item.height - flick.height;
    }

    onWidthChanged: measure()

    Connections {
        target: control.model

        function onDataChanged(topLeft, bottomRight) {
            for (let row = topLeft.row; row <= bottomRight.row; ++row)
                (repeater.itemAt(row) as PropertyRow)?.refresh();
        }
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
            spacing: 4

            Label {
                visible: text !== ""
                width: parent.width
                text: control.model?.title ?? ""
                font.bold: true
                elide: Text.ElideRight
                bottomPadding: 2
            }
            Repeater {
                id: repeater

                model: control.model
                // qmllint disable unqualified
                delegate: PropertyRow {
                    width: column.width
                    list: control
                    onWantedLabelWidthChanged: control.measure()
                    onActiveFocusChanged: {
                        if (activeFocus)
                            control.reveal(this);
                    }
                }
                // qmllint enable unqualified
                onItemAdded: control.measure()
                onItemRemoved: control.measure()
            }
        }
    }
}
