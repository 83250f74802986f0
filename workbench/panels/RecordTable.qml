import QtQuick
import QtQuick.Layouts
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// A table of records of the drawing below a field that searches it.
ColumnLayout {
    id: control

    required property var controller
    required property string name
    required property string searchHint
    required property string nothingFound
    required property string noDrawing
    property string helpKey

    // The user chose the current row by Enter, or by a double click on what can't be edited.
    signal activated

    spacing: Metrics.spacing

    RowLayout {
        spacing: Metrics.spacing

        SearchField {
            objectName: "search"
            Layout.fillWidth: true
            enabled: control.controller.hasDrawing
            placeholderText: control.searchHint
            onTextChanged: control.controller.setSearchText(text)
        }
        HelpButton {
            objectName: "help"
            key: control.helpKey
        }
    }
    Item {
        Layout.fillWidth: true
        Layout.fillHeight: true

        ModelTable {
            id: table

            objectName: control.name
            anchors.fill: parent
            visible: control.controller.hasDrawing
            activeFocusOnTab: true
            model: control.controller.table
            // By the kinds of cells: 1 is a check, 2 a colour, 4 a choice.
            delegates: ({
                    1: check,
                    2: color
                })
            editors: ({
                    2: choice,
                    4: choice
                })
            onCellActivated: control.activated()
        }
        PlaceholderMessage {
            anchors.centerIn: parent
            width: Math.min(parent.width, implicitWidth)
            visible: !control.controller.hasDrawing || table.view.rows === 0
            mark: control.controller.hasDrawing ? "search" : "folder"
            text: control.controller.hasDrawing ? control.nothingFound : control.noDrawing
        }
    }

    Component {
        id: check

        ModelTableCheck {}
    }
    Component {
        id: color

        ColorCell {}
    }
    Component {
        id: choice

        ChoiceEditor {}
    }
}
