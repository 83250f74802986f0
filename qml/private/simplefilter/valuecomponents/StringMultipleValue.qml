import QtQuick
import QtQuick.Controls
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// Several texts as they stand, each in a field of its own: commas, blanks and line breaks are nothing special.
ValueEditor {
    id: editor

    readonly property var texts: {
        const isList = typeof current === "object" && current?.length > 0;
        return isList ? Array.from(current).map(text => String(text ?? "")) : [""];
    }

    function field(row: int): SuggestionField {
        return rows.itemAt(row)?.field ?? null;
    }

    function add() {
        edit(texts.concat(""));
        field(texts.length - 1).forceActiveFocus(Qt.TabFocusReason);
    }

    function remove(row: int) {
        edit(texts.filter((text, index) => index !== row));
        field(Math.min(row, texts.length - 1)).forceActiveFocus(Qt.TabFocusReason);
    }

    Column {
        width: editor.width
        spacing: 4

        Repeater {
            id: rows

            model: editor.texts.length

            // qmllint disable unqualified
            Row {
                id: row

                required property int index
                readonly property string text: editor.texts[index] ?? ""
                readonly property alias field: field

                function show() {
                    if (field.text !== text)
                        field.text = text;
                }

                width: editor.width
                spacing: 2
                onTextChanged: show()
                Component.onCompleted: show()

                SuggestionField {
                    id: field

                    objectName: "field" + row.index
                    width: row.width - (remove.visible ? remove.width + row.spacing : 0)
                    focus: row.index === 0
                    placeholderText: qsTr("Text")
                    suggestions: editor.values
                    onEdited: editor.edit(editor.texts.map((other, index) => index === row.index ? text : other))
                }
                IconButton {
                    id: remove

                    objectName: "remove" + row.index
                    visible: editor.texts.length > 1
                    mark: "cross"
                    text: qsTr("Remove this text")
                    Keys.onReturnPressed: clicked()
                    onClicked: editor.remove(row.index)
                }
            }
            // qmllint enable unqualified
        }
        Button {
            objectName: "add"
            text: qsTr("&Add a text")
            Keys.onReturnPressed: clicked()
            onClicked: editor.add()
        }
    }
}
