import Tandolin.API.Controls

PanelPage {
    id: page

    required property var controller

    ModelTreeView {
        objectName: "parts"
        anchors.fill: parent
        model: page.controller.parts
        onActivated: index => page.controller.show(index)
    }
}
