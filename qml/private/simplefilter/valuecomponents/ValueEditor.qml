import QtQuick
import Tandolin.API.Core.Themes

// What the editors of a filter's values share. The owner sets the value, which the editor shows and never writes: it tells
// of what the user makes of it. A text that is no value stays in its field, marked, and isn't told.
FocusScope {
    id: editor

    // An AbstractFilterPropertiesModel, and the row whose value is edited.
    property var propertiesModel: null
    property int propertyIndex: -1
    property var value
    property var settings

    // What is shown: the value, or what the user made of it.
    property var current: value
    // How often the properties changed.
    property int changes: 0
    readonly property bool hasProperty: {
        const count = changes >= 0 ? propertiesModel?.rowCount() ?? 0 : 0;
        return propertyIndex >= 0 && propertyIndex < count;
    }
    readonly property var values: changes >= 0 && hasProperty ? Array.from(propertiesModel.getValues(propertyIndex)) : []
    readonly property string unit: changes >= 0 && hasProperty ? propertiesModel.getUnit(propertyIndex) : ""
    readonly property var valueModel: hasProperty ? propertiesModel.getModel(propertyIndex) ?? null : null

    // A complete value of the property's kind.
    signal edited(var newValue)
    // Enter: the user is done. A control that does nothing with the key leaves it to the editor.
    signal accepted

    function takeFocus() {
        forceActiveFocus(Qt.TabFocusReason);
    }

    function edit(newValue: var) {
        current = newValue;
        edited(newValue);
    }

    // The rows that a value chooses, in order, without what is none of so many.
    function rowsOf(value: var, count: int): var {
        const isList = typeof value === "object" && value?.length !== undefined;
        const isRow = row => Number.isInteger(row) && row >= 0 && row < count;
        return Array.from(new Set(isList ? Array.from(value).filter(isRow) : [])).sort((a, b) => a - b);
    }

    implicitWidth: 2 * Metrics.fieldWidth
    implicitHeight: childrenRect.height
    onValueChanged: current = value
    Keys.onReturnPressed: accepted()
    Keys.onEnterPressed: accepted()

    Connections {
        target: editor.propertiesModel as QtObject

        function onDataChanged() {
            ++editor.changes;
        }
        function onModelReset() {
            ++editor.changes;
        }
        function onRowsInserted() {
            ++editor.changes;
        }
        function onRowsRemoved() {
            ++editor.changes;
        }
    }
}
