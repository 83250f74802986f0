import QtQuick
import QtQuick.Controls
import Tandolin
import Tandolin.API.Controls

// A field for a length or an angle. The controller has the value and its bounds; the field shows the value in the
// drawing's units, with the unit beside it, and anew whenever those change. Enter and leaving the field commit a text,
// Escape brings the value back. A text that is no value stays to be mended: it is marked, and `error` says why. Up, Down
// and the wheel step by one unit, with Shift by ten.
MarkedField {
    id: control

    // The field may be there before it has one.
    property UnitsInputController controller: null
    // A button for the host's calculator.
    property bool hasCalculator: false
    // Whether the text differs from that of the value.
    readonly property bool edited: text !== inner.shown

    // False when the text is no value. Text that the user didn't change leaves the value with all its digits.
    function commit(): bool {
        if (!edited || !controller) {
            error = "";
            return true;
        }
        const value = controller.parseValue(text);
        if (isNaN(value)) {
            const sample = inner.shown || controller.formatValue(0);
            if (text.trim() === "")
                error = qsTr("A value is needed, such as %1.").arg(sample);
            else if (controller.inputType === 0)
                error = qsTr("This is no length. A length is written as %1.").arg(sample);
            else
                error = qsTr("This is no angle. An angle is written as %1.").arg(sample);
            return false;
        }
        error = "";
        controller.value = value;
        restore();
        return true;
    }

    // Shows the value in the place of what was typed.
    function restore() {
        error = "";
        inner.read();
        text = inner.shown;
        if (activeFocus)
            selectAll();
        else
            cursorPosition = 0;
    }

    function stepBy(units: int) {
        // A number without a unit counts what the field shows.
        const one = controller?.parseValue("1") ?? NaN;
        if (readOnly || isNaN(one) || !commit())
            return;
        controller.value += units * one;
        restore();
    }

    function enter(event) {
        // Without a change Enter is the dialog's.
        event.accepted = edited;
        if (commit())
            selectAll();
    }

    endWidth: calculator.visible ? calculator.width : 0
    unit: {
        // Read to be told of: the controller doesn't tell.
        const told = [Settings.linearUnitString, Settings.angularUnitString];
        return controller?.showUnitLabel ? controller.unitString : "";
    }

    onControllerChanged: restore()
    Component.onCompleted: restore()
    onTextEdited: error = ""
    onActiveFocusChanged: {
        if (activeFocus)
            selectAll();
        else
            commit();
    }
    Keys.onReturnPressed: event => enter(event)
    Keys.onEnterPressed: event => enter(event)
    Keys.onEscapePressed: event => {
        event.accepted = edited;
        restore();
    }
    Keys.onUpPressed: event => stepBy(event.modifiers & Qt.ShiftModifier ? 10 : 1)
    Keys.onDownPressed: event => stepBy(event.modifiers & Qt.ShiftModifier ? -10 : -1)

    WheelHandler {
        property real turned: 0

        // A page must scroll on below the mouse.
        enabled: control.activeFocus
        onWheel: event => {
            turned += event.angleDelta.y + event.angleDelta.x;
            const notches = Math.trunc(turned / 120);
            turned -= 120 * notches;
            if (notches !== 0)
                control.stepBy(notches * (event.modifiers & Qt.ShiftModifier ? 10 : 1));
        }
    }

    QtObject {
        id: inner

        // The value that the text was made of, and that text.
        property real value: 0
        property string shown

        function read() {
            value = control.controller?.value ?? 0;
            shown = control.controller?.formatValue(value) ?? "";
        }

        // What is being typed stays, and so does what can't be read, until the owner sets another value.
        function refresh() {
            const kept = control.edited && (control.activeFocus || value === control.controller?.value);
            if (kept)
                read();
            else
                control.restore();
        }
    }

    Connections {
        target: control.controller

        function onValueChanged() {
            inner.refresh();
        }
        function onPrecisionChanged() {
            inner.refresh();
        }
    }
    // The controller doesn't tell of changed units.
    Connections {
        target: Settings

        function onLinearUnitPrecisionChanged() {
            inner.refresh();
        }
        function onLinearUnitStringChanged() {
            inner.refresh();
        }
        function onAngularUnitPrecisionChanged() {
            inner.refresh();
        }
        function onAngularUnitStringChanged() {
            inner.refresh();
        }
    }

    IconButton {
        id: calculator

        objectName: "calculator"
        anchors.right: parent.right
        anchors.rightMargin: 2
        anchors.verticalCenter: parent.verticalCenter
        width: 20
        height: 20
        visible: control.hasCalculator
        enabled: control.controller !== null && !control.readOnly
        focusPolicy: Qt.NoFocus
        toolIcon: "calculator"
        text: qsTr("Calculator")
        onClicked: {
            control.commit();
            control.controller.launchQuickCalc();
        }
    }
}
