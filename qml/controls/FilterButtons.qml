import QtQuick
import QtQuick.Layouts

// Saves the filter under a name, and loads one of the saved ones. The controller is a FilterManagerButtonsController.
RowLayout {
    id: row

    property var controller: null
    property bool canSave: false

    spacing: 2

    MarkButton {
        objectName: "saveFilter"
        enabled: row.canSave
        mark: "save"
        text: qsTr("Save")
        onClicked: row.controller.openSaveDialog()
    }
    MarkButton {
        id: load

        objectName: "loadFilter"
        enabled: row.controller?.hasSavedFilters ?? false
        mark: "folder"
        text: qsTr("Load")
        onClicked: saved.show()
    }
    SavedFilters {
        id: saved

        parent: load
        y: load.height + 2
        controller: row.controller
    }
}
