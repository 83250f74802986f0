import QtQuick
import QtQuick.Controls
import Tandolin.API.Controls

// A delegate of a ModelTable: a check box of the role "checkState".
Item {
    id: check

    required property ModelTableCell cell

    implicitWidth: box.implicitWidth

    function activate() {
        box.toggle();
        box.toggled();
    }

    CheckBox {
        id: box

        objectName: "check"
        anchors.centerIn: parent
        focusPolicy: Qt.NoFocus
        checkState: check.cell.model.checkState ?? Qt.Unchecked
        Accessible.name: check.cell.info.title ?? ""
        // The model alone says what is checked.
        onToggled: {
            check.cell.commit(checkState, Qt.CheckStateRole);
            checkState = Qt.binding(() => check.cell.model.checkState ?? Qt.Unchecked);
        }
    }
}
