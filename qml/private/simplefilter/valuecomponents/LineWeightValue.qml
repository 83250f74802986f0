import QtQuick
import Tandolin.API.Controls

// A lineweight. The model is every editor's, so its own current row is left alone.
ValueEditor {
    id: editor

    LineWeightCombo {
        objectName: "combo"
        width: editor.width
        focus: true
        model: editor.valueModel
        currentIndex: editor.rowsOf([editor.current], count)[0] ?? -1

        function choose(row: int) {
            editor.edit(row);
        }
    }
}
