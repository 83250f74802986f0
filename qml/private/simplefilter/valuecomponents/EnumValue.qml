import QtQuick
import QtQuick.Controls

// One of the property's values.
ValueEditor {
    id: editor

    ComboBox {
        id: box

        objectName: "combo"
        width: editor.width
        focus: true
        model: editor.values
        currentIndex: editor.rowsOf([editor.current], editor.values.length)[0] ?? -1
        onActivated: row => editor.edit(row)
        // The box would keep the key, which chooses in its list only.
        Keys.onReturnPressed: event => enter(event)
        Keys.onEnterPressed: event => enter(event)

        function enter(event) {
            event.accepted = !popup.visible;
            if (event.accepted)
                editor.accepted();
        }
    }
}
