import QtQuick
import Tandolin.API.Core.Themes
import Tandolin.API.Resources

// One of the two step marks of a spin box.
Rectangle {
    id: button

    required property bool pressed
    required property bool hovered
    property alias mark: mark.name

    implicitWidth: 18
    color: pressed ? Colors.buttonPressed : hovered && enabled ? Colors.hover : "transparent"

    Mark {
        id: mark

        width: 12
        height: 12
        anchors.centerIn: parent
    }
}
