import QtQuick
import Tandolin.API.Controls

// A field for a number, which is written as the locale has it. Each text that is a number is told at once; one that is none
// is marked when it is finished, and Escape brings the number back. Up and Down step by one, with Shift by ten.
MarkedField {
    id: control

    // Anything but a number shows an empty field.
    property var number
    property bool whole: false
    property real from: -Infinity
    property real to: Infinity

    signal entered(real number)

    // NaN for a text that is no number.
    function parsed(text: string): real {
        try {
            return Number.fromLocaleString(Qt.locale(), text.trim());
        } catch (error) {
            return NaN;
        }
    }

    function formatted(number: real): string {
        // With all its digits, and without groups.
        return String(number).replace(".", Qt.locale().decimalPoint);
    }

    function isValue(number: var): bool {
        return Number.isFinite(number) && number >= from && number <= to && (!whole || Number.isInteger(number));
    }

    function explain(): string {
        const typed = parsed(text);
        if (isValue(typed))
            return "";
        if (!Number.isFinite(typed))
            return qsTr("This is no number. A number is written as %1.").arg(formatted(whole ? 12 : 12.5));
        if (whole && !Number.isInteger(typed))
            return qsTr("This is no whole number.");
        return qsTr("A number from %1 to %2 is needed.").arg(formatted(from)).arg(formatted(to));
    }

    function show() {
        error = "";
        text = isValue(number) ? formatted(number) : "";
    }

    function stepBy(units: int) {
        const typed = parsed(text);
        if (readOnly || !isValue(typed) && text !== "")
            return;
        const next = Math.max(from, Math.min(to, (text === "" ? 0 : typed) + units));
        if (next === typed)
            return;
        text = formatted(next);
        entered(next);
        selectAll();
    }

    function enter(event) {
        error = explain();
        event.accepted = error !== "";
        selectAll();
    }

    inputMethodHints: Qt.ImhFormattedNumbersOnly
    // What is being typed stays while it means the number.
    onNumberChanged: {
        if (parsed(text) !== number)
            show();
    }
    Component.onCompleted: show()
    onTextEdited: {
        error = "";
        const typed = parsed(text);
        if (isValue(typed))
            entered(typed);
    }
    onActiveFocusChanged: {
        if (activeFocus)
            selectAll();
        else if (text !== "" || isValue(number))
            error = explain();
    }
    Keys.onReturnPressed: event => enter(event)
    Keys.onEnterPressed: event => enter(event)
    Keys.onEscapePressed: event => {
        event.accepted = isValue(number) && explain() !== "";
        if (event.accepted)
            show();
    }
    Keys.onUpPressed: event => stepBy(event.modifiers & Qt.ShiftModifier ? 10 : 1)
    Keys.onDownPressed: event => stepBy(event.modifiers & Qt.ShiftModifier ? -10 : -1)
}
