import QtQuick
import QtQuick.Controls
import Tandolin
import Tandolin.API.Core.Themes
import Tandolin.API.Resources

// The operators of one category, each with its mark.
ComboBox {
    id: control

    property alias category: operators.category
    property int operation: 0

    // The user chose another operator.
    signal chosen(int operation)

    objectName: "operatorCombo"
    model: operators
    // The marks show the signs themselves.
    textRole: "iconString"
    leftPadding: Metrics.padding + Metrics.markSize + Metrics.spacing
    Accessible.name: qsTr("Operator")
    // The box keeps no choice of its own; the tag says what is chosen.
    currentIndex: count > 0 ? operators.indexOfOperator(operation) : -1
    onActivated: row => {
        chosen(operators.data(operators.index(row, 0), 0));
        currentIndex = Qt.binding(() => count > 0 ? operators.indexOfOperator(operation) : -1);
    }

    ToolTip.text: operators.getComboToolTip(currentIndex)
    ToolTip.visible: Settings.tooltips && hovered && !down && ToolTip.text !== ""
    ToolTip.delay: Settings.tooltipDelay

    FilterOperatorsModel {
        id: operators
    }
    Mark {
        x: Metrics.padding
        anchors.verticalCenter: parent.verticalCenter
        name: MarkPaths.nameOf(operators.getComboIcon(control.currentIndex))
    }

    // qmllint disable unqualified
    delegate: ItemDelegate {
        id: row

        required property var model
        required property int index

        width: ListView.view.width
        leftPadding: Metrics.padding + Metrics.markSize + Metrics.spacing
        text: model.iconString
        font.bold: control.currentIndex === index
        highlighted: control.highlightedIndex === index
        hoverEnabled: control.hoverEnabled
        ToolTip.text: operators.getComboToolTip(index)
        ToolTip.visible: Settings.tooltips && hovered && ToolTip.text !== ""
        ToolTip.delay: Settings.tooltipDelay

        Mark {
            x: Metrics.padding
            anchors.verticalCenter: parent.verticalCenter
            name: MarkPaths.nameOf(row.model.icon)
        }
    }
    // qmllint enable unqualified
}
