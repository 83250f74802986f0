import QtQuick
import Tandolin.API.Controls

PanelPage {
    id: page

    // What the host made.
    required property var tags
    required property var properties
    property string found

    PropertyFilter {
        objectName: "filter"
        anchors.fill: parent
        anchors.margins: 6
        tagsModel: page.tags
        propertiesModel: page.properties
        status: page.found
    }
}
