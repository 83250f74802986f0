import QtQuick
import QtQuick.Templates as T
import Tandolin.API.Core.Themes

T.BusyIndicator {
    id: control

    implicitWidth: Metrics.controlHeight
    implicitHeight: Metrics.controlHeight
    padding: 2

    contentItem: Item {
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

            Item {
                required property int index

                anchors.fill: parent
                rotation: index * 45
                opacity: (index + 1) / 8

                Rectangle {
                    anchors.horizontalCenter: parent.horizontalCenter
                    width: Math.max(2, parent.width / 7)
                    height: width
                    radius: width / 2
                    color: Colors.accent
                }
            }
        }
    }
}
