import QtQuick
import Tandolin.API.Controls

PanelPage {
    id: page

    // What the host made.
    required property var colors
    required property var lineTypes
    required property var lineWeights
    required property var arrowHeads

    signal arrowHeadChosen(int index)

    Row {
        anchors.fill: parent
        anchors.margins: 6
        spacing: 6

        ColorCombo {
            objectName: "color"
            model: page.colors
        }
        LineTypeCombo {
            objectName: "lineType"
            model: page.lineTypes
        }
        LineWeightCombo {
            objectName: "lineWeight"
            model: page.lineWeights
        }
        ArrowHeadCombo {
            objectName: "arrowHead"
            model: page.arrowHeads
            onChosen: index => page.arrowHeadChosen(index)
        }
    }
}
