import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// Works out an expression while it is typed. The host ends the dialog at accepted() and rejected(), and shows the title.
PanelPage {
    id: page

    required property var controller
    readonly property string title: qsTr("Calculator")

    signal accepted
    signal rejected

    implicitWidth: Math.max(340, implicitContentWidth + leftPadding + rightPadding)

    Keys.onEscapePressed: rejected()
    Keys.onReturnPressed: finish()
    Keys.onEnterPressed: finish()

    // Enter presses the button that has the keyboard, or else the default one.
    function finish() {
        if (buttons.rejectFocused)
            rejected();
        else if (controller.problem === "")
            accepted();
    }

    function insert(text: string) {
        field.remove(field.selectionStart, field.selectionEnd);
        field.insert(field.cursorPosition, text);
        field.forceActiveFocus();
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: Metrics.spacing

        TextField {
            id: field

            objectName: "expression"
            Layout.fillWidth: true
            horizontalAlignment: TextInput.AlignRight
            Accessible.name: qsTr("Expression")
            Accessible.description: page.controller.problem
            onTextChanged: page.controller.expression = text
            // Read once: from here on the field owns the text.
            Component.onCompleted: {
                text = page.controller.expression;
                selectAll();
                forceActiveFocus();
            }
        }
        Label {
            objectName: "result"
            Layout.fillWidth: true
            visible: page.controller.problem === ""
            horizontalAlignment: Text.AlignRight
            text: "= " + page.controller.result
            font.bold: true
            elide: Text.ElideRight
        }
        Label {
            objectName: "problem"
            Layout.fillWidth: true
            visible: page.controller.problem !== ""
            horizontalAlignment: Text.AlignRight
            text: page.controller.problem
            // What is not typed yet is no mistake.
            color: field.text.trim() === "" ? Colors.textSecondary : Colors.error
            elide: Text.ElideRight
        }
        GridLayout {
            columns: 6
            columnSpacing: 4
            rowSpacing: 4

            Repeater {
                model: ["7", "8", "9", "/", "(", ")", "4", "5", "6", "*", "^", "sqrt(", "1", "2", "3", "-", "sin(", "cos(", "0", ".", "ans", "+", "pi", "rad("]

                // qmllint disable unqualified
                Button {
                    required property string modelData

                    Layout.fillWidth: true
                    implicitWidth: 44
                    horizontalPadding: 2
                    focusPolicy: Qt.NoFocus
                    text: modelData.replace("(", "") || "("
                    Accessible.name: modelData
                    onClicked: page.insert(modelData)
                }
                // qmllint enable unqualified
            }
        }
        Label {
            Layout.fillWidth: true
            text: qsTr("Angles are in degrees; rad(45) makes radians of them.")
            color: Colors.textSecondary
            font.pointSize: Metrics.smallFontSize
            wrapMode: Text.Wrap
        }
        DialogButtons {
            id: buttons

            Layout.fillWidth: true
            acceptEnabled: page.controller.problem === ""
            onAccepted: page.accepted()
            onRejected: page.rejected()
        }
    }
}
