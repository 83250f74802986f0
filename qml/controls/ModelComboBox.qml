import QtQuick
import QtQuick.Controls
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// A combo box for a ComboModel: icons beside the texts, and separators, which can't be chosen. Typed letters find the next
// row that begins with them, in the popup and in the closed box.
ComboBox {
    id: control

    // What the box shows of the current row, which the model may change.
    property url currentIcon
    property size currentIconSize

    function value(row: int, role: int): var {
        return row >= 0 && row < count ? model.data(model.index(row, 0), role) : undefined;
    }

    function readIcon() {
        currentIcon = Icons.source(value(currentIndex, 258));
        currentIconSize = Qt.size(value(currentIndex, 259) ?? 0, value(currentIndex, 260) ?? 0);
    }

    // The nearest row that can be chosen, from this one on in steps of 1 or -1; -1 when there is none.
    function choosable(row: int, step: int): int {
        while (row >= 0 && row < count && value(row, 5) === "separator")
            row += step;
        return row >= 0 && row < count ? row : -1;
    }

    // Chooses a row, or in the popup only highlights it.
    function moveTo(row: int) {
        if (row < 0)
            return;
        if (popup.visible) {
            while (highlightedIndex < row)
                incrementCurrentIndex();
            while (highlightedIndex > row)
                decrementCurrentIndex();
        } else if (row !== currentIndex) {
            currentIndex = row;
            activated(row);
        }
    }

    textRole: model?.textRole ?? "text"
    valueRole: "value"
    implicitHeight: Math.max(Metrics.controlHeight, currentIconSize.height + 4)
    leftPadding: Metrics.padding + (picture.visible ? picture.width + Metrics.spacing : 0)

    onCurrentIndexChanged: readIcon()
    onModelChanged: readIcon()
    onCountChanged: readIcon()
    Component.onCompleted: readIcon()

    Keys.onPressed: event => {
        const from = popup.visible ? highlightedIndex : currentIndex;
        event.accepted = !(event.modifiers & Qt.AltModifier);
        if (!event.accepted)
            return;
        if (event.key === Qt.Key_Up)
            moveTo(choosable(from - 1, -1));
        else if (event.key === Qt.Key_Down)
            moveTo(choosable(from + 1, 1));
        else if (event.key === Qt.Key_Home || event.key === Qt.Key_PageUp)
            moveTo(choosable(0, 1));
        else if (event.key === Qt.Key_End || event.key === Qt.Key_PageDown)
            moveTo(choosable(count - 1, -1));
        else
            event.accepted = typed.take(event);
    }

    TypedLetters {
        id: typed

        onWanted: letters => {
            const current = control.popup.visible ? control.highlightedIndex : control.currentIndex;
            const first = Math.max(0, current + (letters.length > 1 ? 0 : 1));
            for (let step = 0; step < control.count; ++step) {
                const row = (first + step) % control.count;
                if (control.textAt(row).toLowerCase().startsWith(letters.toLowerCase())) {
                    control.moveTo(row);
                    return;
                }
            }
        }
    }

    Connections {
        target: control.model as QtObject

        function onDataChanged() {
            control.readIcon();
        }
        function onModelReset() {
            control.readIcon();
        }
    }

    Image {
        id: picture

        x: control.mirrored ? control.width - width - Metrics.padding : Metrics.padding
        anchors.verticalCenter: parent.verticalCenter
        visible: String(control.currentIcon) !== ""
        width: control.currentIconSize.width
        height: control.currentIconSize.height
        sourceSize.width: width
        sourceSize.height: height
        fillMode: Image.PreserveAspectFit
        source: control.currentIcon
        opacity: control.enabled ? 1 : 0.4
    }

    // qmllint disable unqualified
    delegate: ItemDelegate {
        required property var model
        required property int index
        readonly property bool isSeparator: model.whatsThis === "separator"
        readonly property url source: Icons.source(model.icon)
        readonly property bool hasIcon: String(source) !== ""

        width: ListView.view.width
        height: isSeparator ? 7 : Math.max(Metrics.rowHeight, icon.height + 4)
        enabled: !isSeparator
        // A "&" in the data is no mnemonic.
        text: String(model[control.textRole] ?? "").replace(/&/g, "&&")
        icon.source: source
        icon.width: hasIcon ? model.iconWidth : 0
        icon.height: hasIcon ? model.iconHeight : 0
        font.bold: control.currentIndex === index
        highlighted: control.highlightedIndex === index
        hoverEnabled: control.hoverEnabled

        Rectangle {
            visible: parent.isSeparator
            x: Metrics.padding
            width: parent.width - 2 * Metrics.padding
            height: 1
            anchors.verticalCenter: parent.verticalCenter
            color: Colors.separator
        }
    }
    // qmllint enable unqualified
}
