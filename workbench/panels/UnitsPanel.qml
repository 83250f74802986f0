import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// Fields for lengths and angles: as the drawing writes them, with bounds, and in every kind of units; and fields for
// plain numbers.
PanelPage {
    id: page

    required property var controller

    helpKey: "units"

    // The keyboard may go to a field that is scrolled out of sight.
    function reveal(item: Item) {
        let above = item;
        while (above && above !== grid)
            above = above.parent;
        if (!above)
            return;
        const flick = scroll.contentItem as Flickable;
        const top = item.mapToItem(grid, 0, 0).y;
        flick.contentY = Math.max(Math.min(flick.contentY, top), top + item.height - flick.height);
    }

    Window.onActiveFocusItemChanged: reveal(Window.activeFocusItem)

    // A bound that is set doesn't clamp the value by itself.
    function setBounds(of: UnitsInputController, lowest: real, highest: real) {
        of.minimumValue = lowest;
        of.maximumValue = highest;
        of.value = of.value;
    }

    component Title: Label {
        Layout.columnSpan: 2
        Layout.fillWidth: true
        Layout.topMargin: 2
        font.bold: true
    }
    component Caption: Label {
        Layout.minimumWidth: 164
        color: Colors.textSecondary
    }
    // Two fields for the bounds of a controller.
    component Bounds: RowLayout {
        id: bounds

        property UnitsInputController controller

        Layout.fillWidth: true
        spacing: Metrics.spacing

        UnitsInputController {
            id: lowest

            inputType: bounds.controller?.inputType ?? 0
            showUnitLabel: bounds.controller?.showUnitLabel ?? true
            Component.onCompleted: {
                value = bounds.controller.minimumValue;
                valueChanged.connect(bounds.apply);
            }
        }
        UnitsInputController {
            id: highest

            inputType: bounds.controller?.inputType ?? 0
            showUnitLabel: bounds.controller?.showUnitLabel ?? true
            Component.onCompleted: {
                value = bounds.controller.maximumValue;
                valueChanged.connect(bounds.apply);
            }
        }

        function apply() {
            page.setBounds(controller, lowest.value, highest.value);
        }

        UnitField {
            objectName: bounds.objectName + "Lowest"
            Layout.fillWidth: true
            controller: lowest
            Accessible.name: qsTr("Lowest value")
        }
        Label {
            text: qsTr("to")
            color: Colors.textSecondary
        }
        UnitField {
            objectName: bounds.objectName + "Highest"
            Layout.fillWidth: true
            controller: highest
            Accessible.name: qsTr("Highest value")
        }
    }

    // qmllint disable unqualified
    Component {
        id: kindRow

        RowLayout {
            required property var modelData
            required property int index

            Layout.columnSpan: 2
            Layout.fillWidth: true

            Caption {
                text: modelData.label
            }
            UnitField {
                objectName: (modelData.controller.inputType === 0 ? "length" : "angle") + index
                Layout.fillWidth: true
                controller: modelData.controller
                Accessible.name: modelData.label
            }
        }
    }
    // qmllint enable unqualified

    ScrollView {
        id: scroll

        anchors.fill: parent
        contentWidth: availableWidth
        ScrollBar.horizontal.policy: ScrollBar.AlwaysOff

        GridLayout {
            id: grid

            width: scroll.availableWidth
            columns: 2
            columnSpacing: Metrics.spacing
            rowSpacing: Metrics.spacing

            RowLayout {
                Layout.columnSpan: 2

                Title {
                    text: qsTr("As the drawing writes them")
                }
                HelpButton {
                    key: page.helpKey
                }
            }
            Caption {
                text: qsTr("Length")
            }
            UnitField {
                objectName: "length"
                Layout.fillWidth: true
                controller: page.controller.length
                hasCalculator: true
                Accessible.name: qsTr("Length")
            }
            Caption {
                text: qsTr("between")
            }
            Bounds {
                objectName: "length"
                controller: page.controller.length
            }
            Caption {
                text: qsTr("Angle")
            }
            UnitField {
                objectName: "angle"
                Layout.fillWidth: true
                controller: page.controller.angle
                hasCalculator: true
                Accessible.name: qsTr("Angle")
            }
            Caption {
                text: qsTr("between")
            }
            Bounds {
                objectName: "angle"
                controller: page.controller.angle
            }
            CheckBox {
                objectName: "unitLabels"
                text: qsTr("Unit &labels")
                checked: page.controller.angle.showUnitLabel
                onToggled: {
                    page.controller.length.showUnitLabel = checked;
                    page.controller.angle.showUnitLabel = checked;
                }
            }
            Button {
                objectName: "editUnits"
                Layout.alignment: Qt.AlignRight
                text: qsTr("&Units...")
                onClicked: page.controller.editUnits()
            }

            Title {
                Layout.topMargin: Metrics.margin
                text: qsTr("The length in every kind")
            }
            Repeater {
                model: page.controller.lengths
                delegate: kindRow
            }
            Title {
                Layout.topMargin: Metrics.margin
                text: qsTr("The angle in every kind")
            }
            Repeater {
                model: page.controller.angles
                delegate: kindRow
            }

            Title {
                Layout.topMargin: Metrics.margin
                text: qsTr("Plain numbers")
            }
            Caption {
                text: qsTr("Integer, 1 to 99")
            }
            TextField {
                objectName: "integer"
                Layout.fillWidth: true
                text: "12"
                Accessible.name: qsTr("Integer, 1 to 99")
                validator: FixingIntValidator {
                    bottom: 1
                    top: 99
                }
            }
            Caption {
                text: qsTr("or empty")
            }
            TextField {
                objectName: "integerOrEmpty"
                Layout.fillWidth: true
                placeholderText: qsTr("None")
                Accessible.name: qsTr("Integer or empty")
                validator: FixingIntValidator {
                    bottom: 1
                    top: 99
                    isEmptyAcceptable: true
                }
            }
            Caption {
                text: qsTr("Real, 0.5 to 2.5")
            }
            TextField {
                objectName: "real"
                Layout.fillWidth: true
                text: "1.5"
                Accessible.name: qsTr("Real, 0.5 to 2.5")
                validator: FixingDoubleValidator {
                    bottom: 0.5
                    top: 2.5
                    decimals: 2
                }
            }
            Caption {
                text: qsTr("or empty")
            }
            TextField {
                objectName: "realOrEmpty"
                Layout.fillWidth: true
                placeholderText: qsTr("None")
                Accessible.name: qsTr("Real or empty")
                validator: FixingDoubleValidator {
                    bottom: 0.5
                    top: 2.5
                    decimals: 2
                    isEmptyAcceptable: true
                }
            }
        }
    }
}
