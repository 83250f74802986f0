import QtQuick
import QtQuick.Templates as T
import Tandolin.API.Core.Themes

T.ProgressBar {
    id: control

    implicitWidth: Metrics.fieldWidth
    implicitHeight: 6

    contentItem: Item {
        clip: true

        Rectangle {
            width: control.visualPosition * parent.width
            height: parent.height
            radius: 3
            visible: !control.indeterminate
            color: control.enabled ? Colors.accent : Colors.border
        }
        Rectangle {
            width: 0.3 * parent.width
            height: parent.height
            radius: 3
            visible: control.indeterminate
            color: control.enabled ? Colors.accent : Colors.border

            NumberAnimation on x {
                from: -0.3 * control.availableWidth
                to: control.availableWidth
                duration: 1200
                loops: Animation.Infinite
                running: control.indeterminate && control.visible
            }
        }
    }
    background: Rectangle {
        radius: 3
        color: Colors.separator
    }
}
