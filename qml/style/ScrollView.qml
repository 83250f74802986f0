import QtQuick
import QtQuick.Templates as T

T.ScrollView {
    id: control

    implicitWidth: contentWidth + leftPadding + rightPadding
    implicitHeight: contentHeight + topPadding + bottomPadding
    rightPadding: T.ScrollBar.vertical.visible ? T.ScrollBar.vertical.width : 0
    bottomPadding: T.ScrollBar.horizontal.visible ? T.ScrollBar.horizontal.height : 0

    T.ScrollBar.vertical: ScrollBar {
        parent: control
        x: control.mirrored ? 0 : control.width - width
        y: control.topPadding
        height: control.availableHeight
        active: control.T.ScrollBar.horizontal.active
    }
    T.ScrollBar.horizontal: ScrollBar {
        parent: control
        x: control.leftPadding
        y: control.height - height
        width: control.availableWidth
        active: control.T.ScrollBar.vertical.active
    }
}
