import QtQuick
import QtQuick.Layouts
import Tandolin.API.Controls

PanelPage {
    id: page

    required property var controller

    ColumnLayout {
        anchors.fill: parent

        SearchField {
            objectName: "search"
            Layout.fillWidth: true
            onTextChanged: page.controller.search(text)
        }
        ModelTable {
            objectName: "stock"
            Layout.fillWidth: true
            Layout.fillHeight: true
            model: page.controller.stock
            onCellActivated: (row, column) => page.controller.order(model.mapProxyRowToSource(row))
        }
    }
}
