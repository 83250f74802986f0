import QtQuick
import QtQuick.Templates as T
import Tandolin.API.Core.Themes

T.BusyIndicator {
    id: control

    implicitWidth: Metrics.controlHeight
    implicitHeight: Metrics.controlHeight
    padding: 2

    contentItem: Item {
        id: dots

        visible: control.running

        RotationAnimator on rotation {
            from: 0
            to: 360
            duration: 1000
            loops: Animation.Infinite
            running: control.running && control.visible
        }
        Repeater {
            model: 8

            Rectangle {
                required property int index

                x: dots.width / 2 - width / 2
                width: Math.max(2, dots.width / 7)
                height: width
                radius: width / 2
                color: Colors.accent
                opacity: (index + 1) / 8
                transform: Rotation {
                    origin.x: dots.width / 2 - x
                    origin.y: dots.height / 2
                    angle: index * 45
                }
            }
        }
    }
}
