import QtQuick
import QtQuick.Templates as T
import Tandolin.API.Core.Themes

T.SplitView {
    id: control

    // qmllint disable unqualified
    handle: Item {
        implicitWidth: control.orientation === Qt.Horizontal ? 6 : control.width
        implicitHeight: control.orientation === Qt.Horizontal ? control.height : 6

        Rectangle {
            readonly property bool used: parent.T.SplitHandle.hovered || parent.T.SplitHandle.pressed

            anchors.centerIn: parent
            width: control.orientation === Qt.Horizontal ? (used ? 2 : 1) : parent.width
            height: control.orientation === Qt.Horizontal ? parent.height : (used ? 2 : 1)
            color: used ? Colors.accent : Colors.border
        }
    }
    // qmllint enable unqualified
}
