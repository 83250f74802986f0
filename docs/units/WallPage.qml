import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin
import Tandolin.API.Controls

PanelPage {
    id: page

    GridLayout {
        anchors.fill: parent
        columns: 2

        Label {
            text: qsTr("Thickness")
        }
        UnitField {
            objectName: "thickness"
            hasCalculator: true
            Accessible.name: qsTr("Thickness")
            controller: UnitsInputController {
                minimumValue: 0.1
                maximumValue: 80
                value: 11.5
            }
        }
        Label {
            text: qsTr("Slope")
        }
        UnitField {
            objectName: "slope"
            Accessible.name: qsTr("Slope")
            controller: UnitsInputController {
                inputType: 1 // first: it begins anew with bounds and value
                value: Math.PI / 6
            }
        }
        Label {
            text: qsTr("Storeys")
        }
        TextField {
            objectName: "storeys"
            Accessible.name: qsTr("Storeys")
            text: "1"
            validator: FixingIntValidator {
                bottom: 1
                top: 120
            }
        }
    }
}
