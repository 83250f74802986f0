import QtQuick
import QtQuick.Controls
import Tandolin.API.Core.Themes.Engine

Rectangle {
    color: Theme.colors.panelBackground

    Label {
        anchors.centerIn: parent
        text: qsTr("A page of QML in a wxFrame")
    }
}
