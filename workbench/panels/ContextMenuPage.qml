import QtQuick
import Tandolin.API.Controls

// A context menu alone in its window.
Item {
    id: page

    required property var controller

    function openAt(place) {
        menu.popup(place);
    }

    ModelMenu {
        id: menu

        objectName: "contextMenu"
        model: page.controller.menu
        onClosed: page.controller.closed()
    }
}
