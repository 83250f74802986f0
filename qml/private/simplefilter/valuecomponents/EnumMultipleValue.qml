import QtQuick

// Several of the property's values.
ValueEditor {
    id: editor

    CheckList {
        width: editor.width
        focus: true
        texts: editor.values
        chosen: editor.rowsOf(editor.current, editor.values.length)
        onEdited: rows => editor.edit(rows)
        onAccepted: editor.accepted()
    }
}
