import QtQuick
import QtQuick.Controls
import QtQuick.Templates as T
import Tandolin
import Tandolin.API.Core.Themes

// A popup of a page in a window of its own above the host's: as large as its contents, wherever the core's owner says.
// It takes the keyboard, and closes when that goes to another window, which a click anywhere else brings about; when
// Escape is pressed; or when the core asks for it. The core hears once that it closed. A page holds it as a property: as a
// child it would get the page's window, which lies in one of the host's, as its transient parent.
Window {
    id: popup

    required property TransientPopupCore core
    // The button that opens and closes the popup by toggle().
    property T.AbstractButton opener: null
    default property alias contents: pane.contentData

    // A window counts as active together with the one that it is transient for, but has this by itself only.
    readonly property bool hasKeyboard: contentItem.activeFocus
    property bool hadKeyboard: false
    property bool wasOpen: false
    // The press on the opener that took the keyboard away, and closed the popup, ends in a click there.
    property bool closedByOpener: false

    // The size is known: the core's owner can find a place for it.
    signal aboutToShow

    function open() {
        if (wasOpen)
            return;
        hadKeyboard = false;
        wasOpen = true;
        closedByOpener = false;
        const host = core.windowParent().getQtParent();
        if (host !== null)
            transientParent = host;
        aboutToShow();
        show();
        requestActivate();
    }

    function dismiss() {
        hide();
        tellClosed();
    }

    function tellClosed() {
        if (wasOpen) {
            wasOpen = false;
            core.closed();
        }
    }

    function toggle() {
        const justClosed = closedByOpener;
        closedByOpener = false;
        if (wasOpen)
            dismiss();
        else if (!justClosed)
            open();
    }

    flags: Qt.Tool | Qt.FramelessWindowHint | Qt.NoDropShadowWindowHint
    color: Colors.popup
    width: Math.max(1, Math.ceil(pane.implicitWidth))
    height: Math.max(1, Math.ceil(pane.implicitHeight))

    onHasKeyboardChanged: {
        if (hasKeyboard) {
            hadKeyboard = true;
        } else if (hadKeyboard && !core.customContentHasFocus()) {
            closedByOpener = opener !== null && opener.hovered;
            dismiss();
        }
    }
    // This may come late: a popup that is closed by its own hand doesn't wait for it.
    onVisibleChanged: {
        if (!visible)
            tellClosed();
    }

    Connections {
        target: popup.core

        function onCloseRequested() {
            popup.dismiss();
        }
        function onSetPosition(position) {
            popup.x = position.x;
            popup.y = position.y;
        }
    }
    Connections {
        target: popup.opener

        function onHoveredChanged() {
            if (!popup.opener.hovered)
                popup.closedByOpener = false;
        }
    }
    Pane {
        id: pane

        anchors.fill: parent
        focus: true
        background: Rectangle {
            color: Colors.popup
            border.color: Colors.outline
        }

        Keys.onEscapePressed: popup.dismiss()
    }
    // Takes the press and the release that the core wants ignored.
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        onPressed: mouse => mouse.accepted = popup.core.ignoreNextMouseRelease()
        onReleased: popup.core.setIgnoreNextMouseRelease(false)
        onCanceled: popup.core.setIgnoreNextMouseRelease(false)
    }
}
