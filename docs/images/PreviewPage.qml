import QtQuick
import QtQuick.Layouts
import Tandolin
import Tandolin.API.Controls

PanelPage {
    id: page

    required property var controller

    ColumnLayout {
        anchors.fill: parent

        DevSettingsList {
            objectName: "settings"
            Layout.fillWidth: true
            settings: UIDevSettingsModel {
                id: settings

                expanded: true
                Component.onCompleted: load("Host/Preview", [
                    ["smooth", qsTr("Smooth")],
                    ["mode", qsTr("Mode"), [qsTr("Stretch"), qsTr("Fit"), qsTr("Fill")]]
                ])
            }
        }
        ResizedImage {
            objectName: "preview"
            Layout.fillWidth: true
            Layout.fillHeight: true
            image: page.controller.picture
            mode: settings.dict.mode ?? ResizedImage.Fit
            smooth: settings.dict.smooth ?? false
        }
    }
}
