import QtQuick
import QtQuick.Window
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// Shows and sets a linetype. The model is a LineTypeModel.
PropertyCombo {
    id: control

    // The model's texts for the rows behind the linetypes, of which there are three at most.
    readonly property string variesName: qsTranslate("velm::LineTypeModel", "*Varies*")
    readonly property list<string> loadNames: [
        qsTranslate("velm::LineTypeModel", "Load..."),
        qsTranslate("velm::LineTypeModel", "Properties...")
    ]

    function choose(row: int) {
        model.setCurrentIndexOrLoad(row);
    }

    function nameOf(object: var): string {
        return object?.lineTypeName ?? "";
    }

    function kindOf(object: var, row: int): string {
        if (row < count - 3)
            return "";
        return nameOf(object) === variesName ? "varies" : loadNames.includes(nameOf(object)) ? "load" : "";
    }

    defaultPictureSize: Qt.size(64, 16)
    picture: PropertyComboImage {
        id: picture

        // Drawn on the ground of the theme, in pixels of the screen.
        readonly property var ground: [Colors.dark, Colors.combo]

        // The host's new colours are there later than the theme's.
        property bool isDue: false

        onGroundChanged: {
            isDue = false;
            due.restart();
        }

        image: {
            const pixels = length => Math.round(length * Screen.devicePixelRatio);
            return isDue && ground && kind === "" && width > 0 ? object?.lineTypePreview(pixels(width), pixels(height)) : null;
        }

        Timer {
            id: due

            interval: 0
            running: true
            onTriggered: picture.isDue = true
        }
    }
}
