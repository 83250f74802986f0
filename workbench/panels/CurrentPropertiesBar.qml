import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// The colour, linetype, lineweight and arrowhead of the selected entities, or of new ones.
PanelPage {
    id: page

    required property var controller

    topPadding: 4
    bottomPadding: 4

    RowLayout {
        anchors.fill: parent
        enabled: page.controller.hasDrawing
        spacing: Metrics.spacing

        Label {
            objectName: "subject"
            Layout.preferredWidth: 84
            visible: page.width > 560
            text: page.controller.subject
            color: Colors.textSecondary
            elide: Text.ElideRight
        }
        ColorCombo {
            objectName: "colorCombo"
            Layout.fillWidth: true
            Layout.maximumWidth: 180
            model: page.controller.colors
        }
        LineTypeCombo {
            objectName: "lineTypeCombo"
            Layout.fillWidth: true
            Layout.maximumWidth: 240
            model: page.controller.linetypes
        }
        LineWeightCombo {
            objectName: "lineWeightCombo"
            Layout.fillWidth: true
            Layout.maximumWidth: 180
            model: page.controller.lineWeights
        }
        ArrowHeadCombo {
            objectName: "arrowHeadCombo"
            Layout.fillWidth: true
            Layout.maximumWidth: 200
            enabled: page.controller.hasArrowhead
            model: page.controller.arrowheads
            extraName: page.controller.extraArrowheadName
            extraImage: page.controller.extraArrowheadImage
            onChosen: index => page.controller.takeArrowhead(index)
        }
        Item {
            Layout.fillWidth: true
            Layout.preferredWidth: 0
        }
    }
}
