import QtQuick
import QtQuick.Controls
import Tandolin.API.Controls

// A delegate of a ModelTable: a check box of the role "checkState", or of whether the row is selected in a column that shows
// that.
Item {
    id: check

    required property ModelTableCell cell
    readonly property int shownState: {
        if (cell.info.selectionColumn)
            return cell.isSelected ? Qt.Checked : Qt.Unchecked;
        return cell.model.checkState ?? Qt.Unchecked;
    }

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
        checkState: check.shownState
        Accessible.name: check.cell.info.title ?? ""
        // The model alone says what is checked.
        onToggled: {
            if (check.cell.info.selectionColumn)
                check.cell.table.model.ctrlSelection(check.cell.row, check.cell.column);
            else
                check.cell.commit(checkState, Qt.CheckStateRole);
            checkState = Qt.binding(() => check.shownState);
        }
    }
}
