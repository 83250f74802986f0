import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// Asks for a name. The host ends the dialog at accepted() and rejected(), unless the controller refuses, and shows the
// title.
PanelPage {
    id: page

    required property NameDialogController controller
    property string title: qsTr(controller.untranslatedTitle)

    signal accepted
    signal rejected

    implicitWidth: Math.max(320, implicitContentWidth + leftPadding + rightPadding)

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

    ColumnLayout {
        anchors.fill: parent
        spacing: Metrics.spacing

        Label {
            text: page.controller.label
        }
        TextField {
            id: field

            objectName: "name"
            Layout.fillWidth: true
            Accessible.name: page.controller.label
            onTextChanged: page.controller.name = text
            // Read once: from here on the field owns the text.
            Component.onCompleted: {
                text = page.controller.name;
                selectAll();
                forceActiveFocus();
            }
        }
        Item {
            Layout.fillHeight: true
            implicitHeight: Metrics.spacing
        }
        DialogButtons {
            id: buttons

            Layout.fillWidth: true
            acceptText: page.controller.button
            onAccepted: page.accepted()
            onRejected: page.rejected()
        }
    }
}
