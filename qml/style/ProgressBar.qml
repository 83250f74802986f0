import QtQuick
import QtQuick.Templates as T
import Tandolin.API.Core.Themes

T.ProgressBar {
    id: control

    implicitWidth: Metrics.fieldWidth
    implicitHeight: 6

    contentItem: Item {
        clip: control.indeterminate

        Rectangle {
            id: bar

            width: (control.indeterminate ? 0.3 : control.visualPosition) * parent.width
            height: parent.height
            radius: 3
            color: control.enabled ? Colors.accent : Colors.border

            XAnimator on x {
                from: -bar.width
                to: control.width
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
