import QtQuick
import QtQuick.Controls
import QtQuick.Window
import Tandolin
import Tandolin.API.Core.Themes

// What the developer settings of the workbench do on a page. It lies over the page, which takes over what was set on
// another page when the mouse comes to it.
Item {
    id: tools

    // Its items are framed.
    required property Item target
    property bool follows: true
    readonly property UIDevSettingsModel settings: UIDevSettingsModel {
        expanded: true
    }
    readonly property var values: settings.dict
    // Of the squares below clear pictures, in logical pixels.
    readonly property int chequer: [8, 24, 0][values.chequer ?? 0] ?? 8
    property var frames: []
    property int frameCount: 0
    property bool isOwnFrame: false

    function load() {
        settings.load("Workbench", [
            ["bounds", qsTr("Show the bounds of items")],
            ["frames", qsTr("Show the count of frames")],
            ["chequer", qsTr("Chequer below pictures"), [qsTr("Fine"), qsTr("Coarse"), qsTr("None")]]
        ]);
    }

    function collect(item: Item, found) {
        for (const child of item.children) {
            if (!child.visible || child.width <= 0 || child.height <= 0)
                continue;
            found.push(child.mapToItem(tools, 0, 0, child.width, child.height));
            collect(child, found);
        }
    }

    function follow() {
        const found = [];
        if (values.bounds)
            collect(target, found);
        // Only what is new costs another frame.
        if (JSON.stringify(found) !== JSON.stringify(frames))
            frames = found;
        // The frame that shows the count isn't counted.
        if (values.frames && !isOwnFrame)
            ++frameCount;
        isOwnFrame = values.frames && !isOwnFrame;
    }

    anchors.fill: parent
    z: 1

    Component.onCompleted: load()

    HoverHandler {
        onHoveredChanged: {
            if (hovered && tools.follows)
                tools.load();
        }
    }
    Connections {
        target: tools.Window.window

        function onAfterAnimating() {
            tools.follow();
        }
    }
    Repeater {
        model: tools.frames

        Rectangle {
            required property rect modelData

            x: modelData.x
            y: modelData.y
            width: modelData.width
            height: modelData.height
            color: "transparent"
            border.color: Colors.focus
            opacity: 0.6
        }
    }
    Label {
        objectName: "frameCount"
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        visible: tools.values.frames ?? false
        padding: 3
        text: qsTr("Frame %1").arg(tools.frameCount)
        color: Colors.accentText
        background: Rectangle {
            color: Colors.accent
        }
    }
}
