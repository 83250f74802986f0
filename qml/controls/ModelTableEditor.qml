import QtQuick
import QtQuick.Controls

// The editor of one cell of a ModelTable. It lies above the cells, which come and go as the table scrolls.
FocusScope {
    id: editor

    required property var table
    property int row: -1
    property int column: -1
    property var formerValue
    property Item content: null
    readonly property bool isOpen: content !== null

    // The view puts its cells at 1.
    z: 2
    visible: isOpen

    // Without a component a text is edited.
    function open(row: int, column: int, value: var, component: Component) {
        finish();
        editor.row = row;
        editor.column = column;
        formerValue = value;
        content = (component ?? field).createObject(editor, {
            value: value
        });
        content.anchors.fill = editor;
        content.accepted.connect(value => editor.take(value));
        content.cancelled.connect(() => editor.close());
        content.forceActiveFocus();
    }

    function take(value: var) {
        if (!isOpen)
            return;
        close();
        if (value !== formerValue)
            table.commit(row, column, value, Qt.EditRole);
    }

    // What is being typed is told to the model.
    function finish() {
        content?.finish?.();
        close();
    }

    function close() {
        if (!isOpen)
            return;
        const hadFocus = activeFocus;
        const old = content;
        content = null;
        old.visible = false;
        old.destroy();
        if (hadFocus)
            table.takeFocus();
    }

    Connections {
        target: editor.isOpen ? editor.table.model : null

        // The cell may be another one now.
        function onRowsInserted() {
            editor.close();
        }
        function onRowsMoved() {
            editor.close();
        }
        function onRowsRemoved() {
            editor.close();
        }
        function onColumnsInserted() {
            editor.close();
        }
        function onColumnsMoved() {
            editor.close();
        }
        function onColumnsRemoved() {
            editor.close();
        }
        function onLayoutChanged() {
            editor.close();
        }
        function onModelReset() {
            editor.close();
        }
    }

    // qmllint disable unqualified
    Component {
        id: field

        FocusScope {
            id: scope

            required property var value

            signal accepted(var value)
            signal cancelled

            function finish() {
                // A number in the text's form is no change.
                accepted(edit.text === String(value ?? "") ? value : edit.text);
            }

            TextField {
                id: edit

                objectName: "editor"
                anchors.fill: parent
                focus: true
                text: String(scope.value ?? "")
                Component.onCompleted: selectAll()
                onActiveFocusChanged: {
                    if (!activeFocus)
                        scope.finish();
                }
                Keys.onReturnPressed: scope.finish()
                Keys.onEnterPressed: scope.finish()
                Keys.onEscapePressed: scope.cancelled()
            }
        }
    }
    // qmllint enable unqualified
}
