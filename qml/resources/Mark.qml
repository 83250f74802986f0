import QtQuick
import QtQuick.Shapes
import Tandolin.API.Core.Themes

// One of the marks of MarkPaths in a colour; an unknown name draws nothing.
Item {
    id: root

    property string name
    property color color: enabled ? Colors.text : Colors.textDisabled
    property real lineWidth: 1.3

    implicitWidth: Metrics.markSize
    implicitHeight: Metrics.markSize

    Shape {
        id: shape

        readonly property real factor: Math.min(root.width, root.height) / 16

        width: 16 * factor
        height: 16 * factor
        anchors.centerIn: parent
        visible: root.name in MarkPaths.outlines
        // Without samples of its own the outline is drawn with stairs.
        layer.enabled: true
        layer.samples: 4

        ShapePath {
            strokeColor: root.color
            strokeWidth: root.lineWidth * shape.factor
            scale: Qt.size(shape.factor, shape.factor)
            fillColor: "transparent"
            capStyle: ShapePath.RoundCap
            joinStyle: ShapePath.RoundJoin

            PathSvg {
                path: MarkPaths.outlines[root.name] ?? ""
            }
        }
    }
}
