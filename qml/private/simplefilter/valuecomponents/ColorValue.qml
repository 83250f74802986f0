import QtQuick
import QtQuick.Controls
import Tandolin.API.Core.Themes

// Several colours, by their numbers among the standard ones. A colour that isn't listed comes from the colour dialog.
ValueEditor {
    id: editor

    property int loaded: 0
    readonly property var colors: loaded >= 0 ? colorsBefore(valueModel?.rowCount() ?? 0) : []

    // The standard colours of so many rows.
    function colorsBefore(count: int): var {
        const objects = Array.from({length: count}, (none, row) => valueModel.data(valueModel.index(row, 0), 0));
        return objects.filter(color => color.type === "");
    }

    // As the colour of the layer stands in a combo.
    function swatchOf(object: var): var {
        const byLayer = valueModel.byLayerAsBlack ? "black" : valueModel.byLayerColor;
        return {color: object.colorIndex === 0 ? byLayer : object.color, diagonal: object.drawDiagonal};
    }

    function load() {
        const row = valueModel.doShowColorDialog(-1);
        if (row < 0)
            return;
        const number = colorsBefore(row).length;
        if (!list.chosen.includes(number))
            list.toggle(number);
        list.show(number);
    }

    Column {
        width: editor.width
        spacing: Metrics.spacing

        CheckList {
            id: list

            width: parent.width
            focus: true
            texts: editor.colors.map(color => color.name)
            swatches: editor.colors.map(color => editor.swatchOf(color))
            chosen: editor.rowsOf(editor.current, editor.colors.length)
            onEdited: rows => editor.edit(rows)
            onAccepted: editor.accepted()
        }
        Button {
            objectName: "load"
            enabled: editor.valueModel !== null
            text: qsTr("&Other colour...")
            Keys.onReturnPressed: clicked()
            onClicked: later.restart()
        }
    }

    // A dialog is opened when the click is over.
    Timer {
        id: later

        interval: 0
        onTriggered: editor.load()
    }
    Connections {
        target: editor.valueModel as QtObject

        function onModelReset() {
            ++editor.loaded;
        }
        function onRowsInserted() {
            ++editor.loaded;
        }
        function onRowsRemoved() {
            ++editor.loaded;
        }
    }
}
