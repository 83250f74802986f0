import QtQuick
import QtQuick.Controls

// An editor of a table: one of the texts that the cell's role "choices" gives.
FocusScope {
    id: editor

    required property int value

    signal accepted(var value)
    signal cancelled

    ComboBox {
        id: box

        objectName: "choice"
        anchors.fill: parent
        focus: true
        onActivated: index => editor.accepted(index)
        Component.onCompleted: {
            const place = editor.parent;
            const index = place.table.model.index(place.row, place.column);
            model = place.table.model.data(index, Qt.UserRole);
            currentIndex = editor.value;
            popup.open();
        }

        Connections {
            target: box.popup

            function onClosed() {
                editor.cancelled();
            }
        }
    }
}
