import QtQuick

// A number with its unit.
ValueEditor {
    id: editor

    NumberField {
        objectName: "field"
        width: editor.width
        focus: true
        number: editor.current
        unit: editor.unit
        onEntered: number => editor.edit(number)
    }
}
