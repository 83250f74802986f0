import Tandolin.API.Controls

// The menu of a table's header, from its ColumnContextMenuModel.
ModelMenu {
    id: control

    // The column that it was opened on; -1: none.
    property int column: -1

    function read(index): var {
        const value = role => control.model.data(index, role);
        return {
            kind: value(5) === "separator" ? "separator" : "text",
            text: value(1) ?? "",
            enabled: value(4) ?? true,
            checkable: value(2) ?? false,
            checked: value(3) ?? false
        };
    }

    function run(index) {
        const value = role => control.model.data(index, role);
        if (value(5) === "showhide")
            control.model.setSourceColumnVisible(index.row, !value(3));
        else
            control.model.trigger(index.row, column);
    }
}
