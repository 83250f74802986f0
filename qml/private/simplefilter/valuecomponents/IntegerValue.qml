import QtQuick

// A whole number with its unit.
ValueEditor {
    id: editor

    NumberField {
        objectName: "field"
        width: editor.width
        focus: true
        whole: true
        from: -2147483648
        to: 2147483647
        number: editor.current
        unit: editor.unit
        // Of the type int.
        onEntered: number => editor.edit(number | 0)
    }
}
