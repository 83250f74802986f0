import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// How the drawing writes lengths and angles. The host ends the dialog at accepted() and rejected(), and shows the title.
PanelPage {
    id: page

    required property var controller
    readonly property string title: qsTr("Drawing Units")

    signal accepted
    signal rejected

    implicitWidth: Math.max(360, implicitContentWidth + leftPadding + rightPadding)

    Keys.onEscapePressed: rejected()
    Keys.onReturnPressed: finish()
    Keys.onEnterPressed: finish()

    // Enter presses the button that has the keyboard, or else the default one.
    function finish() {
        if (buttons.rejectFocused)
            rejected();
        else
            accepted();
    }

    // The texts of precisions change with the kind, the chosen one stays.
    component Choice: ComboBox {
        property var texts
        property int chosen

        Layout.fillWidth: true
        onTextsChanged: show()
        onChosenChanged: show()
        Component.onCompleted: show()
        Keys.onReturnPressed: event => enter(event)
        Keys.onEnterPressed: event => enter(event)

        function show() {
            model = texts;
            currentIndex = chosen;
        }

        // A closed box has no use for Enter, but would keep it.
        function enter(event) {
            event.accepted = !popup.visible;
            if (!popup.visible)
                page.finish();
        }
    }
    component Caption: Label {
        font.bold: true
        Layout.columnSpan: 2
        Layout.topMargin: 2
    }
    component Sample: Label {
        Layout.fillWidth: true
        color: Colors.textSecondary
        elide: Text.ElideRight
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: Metrics.spacing

        GridLayout {
            columns: 2
            columnSpacing: Metrics.margin
            rowSpacing: Metrics.spacing

            Caption {
                text: qsTr("Lengths")
            }
            Label {
                text: qsTr("Kind")
            }
            Choice {
                objectName: "linearKind"
                focus: true
                texts: page.controller.linearKinds
                chosen: page.controller.linearKind
                Accessible.name: qsTr("Kind of lengths")
                onActivated: index => page.controller.linearKind = index
            }
            Label {
                text: qsTr("Precision")
            }
            Choice {
                objectName: "linearPrecision"
                texts: page.controller.linearPrecisions
                chosen: page.controller.linearPrecision
                Accessible.name: qsTr("Precision of lengths")
                onActivated: index => page.controller.linearPrecision = index
            }
            Label {
                text: qsTr("Sample")
                color: Colors.textSecondary
            }
            Sample {
                objectName: "linearSample"
                text: page.controller.linearSample
            }
            Caption {
                Layout.topMargin: Metrics.margin
                text: qsTr("Angles")
            }
            Label {
                text: qsTr("Kind")
            }
            Choice {
                objectName: "angularKind"
                texts: page.controller.angularKinds
                chosen: page.controller.angularKind
                Accessible.name: qsTr("Kind of angles")
                onActivated: index => page.controller.angularKind = index
            }
            Label {
                text: qsTr("Precision")
            }
            Choice {
                objectName: "angularPrecision"
                texts: page.controller.angularPrecisions
                chosen: page.controller.angularPrecision
                Accessible.name: qsTr("Precision of angles")
                onActivated: index => page.controller.angularPrecision = index
            }
            Label {
                text: qsTr("Sample")
                color: Colors.textSecondary
            }
            Sample {
                objectName: "angularSample"
                text: page.controller.angularSample
            }
        }
        Item {
            Layout.fillHeight: true
            implicitHeight: Metrics.spacing
        }
        DialogButtons {
            id: buttons

            Layout.fillWidth: true
            onAccepted: page.accepted()
            onRejected: page.rejected()
        }
    }
}
