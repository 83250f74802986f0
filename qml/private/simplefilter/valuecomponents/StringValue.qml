import QtQuick
import QtQuick.Controls

// A text as it stands, blanks and all.
ValueEditor {
    id: editor

    readonly property string wanted: typeof current === "string" ? current : ""

    onWantedChanged: {
        if (field.text !== wanted)
            field.text = wanted;
    }

    TextField {
        id: field

        objectName: "field"
        width: editor.width
        focus: true
        text: editor.wanted
        placeholderText: qsTr("Text")
        onTextEdited: editor.edit(text)
        onActiveFocusChanged: {
            if (activeFocus)
                selectAll();
        }
    }
}
