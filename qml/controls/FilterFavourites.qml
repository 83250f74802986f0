import QtQuick
import QtQuick.Controls
import Tandolin.API.Core.Themes

// The pinned properties; a click or Enter chooses one, the mark at its right lets it go.
PlainListView {
    id: control

    signal chosen(int propertyIndex)

    function propertyAt(row: int): int {
        // The view's current row may be behind the last one when that went.
        const shown = Math.min(row, count - 1);
        return shown >= 0 ? model.data(model.index(shown, 0), 257) : -1;
    }

    objectName: "favourites"
    // The list itself: a scope that stops there would stop twice.
    Component.onCompleted: view.activeFocusOnTab = true
    textRole: "name"
    implicitHeight: Math.min(5, count) * Metrics.rowHeight + 4
    onActivated: row => chosen(propertyAt(row))
    onClicked: row => chosen(propertyAt(row))
    Keys.onDeletePressed: model.unpinProperty(propertyAt(currentIndex))

    // qmllint disable unqualified
    accessory: IconButton {
        objectName: "unpin"
        focusPolicy: Qt.NoFocus
        mark: hovered ? "unpin" : "pin"
        markColor: Colors.accentStrong
        text: qsTr("Remove from the favourites")
        onClicked: control.model.unpinProperty(parent.model.propertyIndex)
    }
    // qmllint enable unqualified
}
