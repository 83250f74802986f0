import QtQuick
import QtQuick.Controls
import Tandolin.API.Core.Themes
import Tandolin.API.Resources

// A field for a search text; Escape or the cross empties it.
TextField {
    id: control

    leftPadding: Metrics.padding + Metrics.markSize + 4
    rightPadding: clear.visible ? clear.width + 4 : Metrics.padding
    placeholderText: qsTr("Search")
    Accessible.name: placeholderText

    // An empty field leaves Escape to whoever closes the page.
    Keys.onEscapePressed: event => {
        event.accepted = length > 0;
        clear.clicked();
    }

    Mark {
        x: Metrics.padding
        anchors.verticalCenter: parent.verticalCenter
        name: "search"
        color: control.enabled ? Colors.textSecondary : Colors.textDisabled
    }
    IconButton {
        id: clear

        x: control.width - width - 2
        width: 20
        height: 20
        anchors.verticalCenter: parent.verticalCenter
        visible: control.length > 0 && control.enabled && !control.readOnly
        focusPolicy: Qt.NoFocus
        mark: "cross"
        text: qsTr("Clear")
        onClicked: control.clear()
    }
}
