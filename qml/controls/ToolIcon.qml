import QtQuick
import QtQuick.Window
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// One of the tool icons, in the colours of the theme and with the pixels of the screen that it is on. An unknown name
// shows nothing.
Item {
    id: root

    property string name
    // In logical pixels, as all sizes of a page.
    property int size: 24

    readonly property int pixels: {
        const wanted = size * Screen.devicePixelRatio;
        return [16, 20, 24, 28, 32, 40, 48, 56].find(pixels => pixels >= wanted) ?? 64;
    }

    implicitWidth: size
    implicitHeight: size

    Image {
        anchors.centerIn: parent
        width: root.size
        height: root.size
        opacity: root.enabled ? 1 : 0.4
        source: root.name === "" ? "" : Icons.source(`qrc:/toolicons/${root.pixels}/${Colors.dark ? "dark" : "light"}/${root.name}.png`)
    }
}
