import QtQuick
import QtQuick.Controls
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// What a combo shows of a row: picture and name.
Item {
    id: face

    property var object: undefined
    property string kind
    // The combo.
    required property var combo

    // How often the object told of a new name.
    property int told: 0
    readonly property string name: told >= 0 && object !== undefined ? combo.nameOf(object) : ""

    implicitWidth: label.x + label.implicitWidth
    implicitHeight: Math.max(label.implicitHeight, combo.pictureSize.height)
    opacity: enabled ? 1 : 0.5

    Connections {
        target: face.object ?? null
        ignoreUnknownSignals: true

        function onLineWeightNameChanged() {
            ++face.told;
        }
    }
    Loader {
        id: loader

        readonly property PropertyComboPicture shown: item as PropertyComboPicture

        width: face.combo.pictureSize.width
        height: face.combo.pictureSize.height
        anchors.verticalCenter: parent.verticalCenter
        // A row that is no value has no picture.
        visible: face.kind === "" && face.object !== undefined
        sourceComponent: face.combo.picture
    }
    Binding {
        target: loader.shown
        property: "object"
        value: face.object
    }
    Binding {
        target: loader.shown
        property: "kind"
        value: face.kind
    }
    Label {
        id: label

        objectName: "comboName"
        x: loader.visible ? loader.width + Metrics.spacing : 0
        width: Math.max(0, face.width - x)
        anchors.verticalCenter: parent.verticalCenter
        text: face.name
        textFormat: Text.PlainText
        elide: Text.ElideRight
    }
}
