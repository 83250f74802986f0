import QtQuick
import QtQuick.Templates as T
import Tandolin.API.Core.Themes
import Tandolin.API.Resources

T.ComboBox {
    id: control

    implicitWidth: implicitBackgroundWidth
    implicitHeight: Math.max(implicitBackgroundHeight, implicitContentHeight + topPadding + bottomPadding)
    leftPadding: Metrics.padding + (mirrored ? indicator.width : 0)
    rightPadding: Metrics.padding + (mirrored ? 0 : indicator.width)
    font.pointSize: Metrics.fontSize
    font.hintingPreference: Metrics.hinting

    // qmllint disable unqualified
    delegate: ItemDelegate {
        required property var model
        required property int index

        width: ListView.view.width
        // A "&" in the data is no mnemonic.
        text: String(model[control.textRole || "modelData"] ?? "").replace(/&/g, "&&")
        font.bold: control.currentIndex === index
        highlighted: control.highlightedIndex === index
        hoverEnabled: control.hoverEnabled
    }
    // qmllint enable unqualified
    indicator: Mark {
        x: control.mirrored ? 4 : control.width - width - 4
        y: (control.height - height) / 2
        name: "chevron-down"
        color: control.enabled ? Colors.textSecondary : Colors.textDisabled
    }
    contentItem: T.TextField {
        text: control.editable ? control.editText : control.displayText
        enabled: control.editable
        autoScroll: control.editable
        readOnly: control.down
        inputMethodHints: control.inputMethodHints
        validator: control.validator
        selectByMouse: control.selectTextByMouse
        font: control.font
        renderType: Metrics.renderType
        color: control.enabled ? Colors.text : Colors.textDisabled
        selectionColor: Colors.selection
        selectedTextColor: Colors.text
        verticalAlignment: Text.AlignVCenter
    }
    background: Rectangle {
        implicitWidth: Metrics.fieldWidth
        implicitHeight: Metrics.controlHeight
        radius: Metrics.radius
        color: {
            if (!control.enabled)
                return "transparent";
            if (control.editable)
                return Colors.input;
            return control.down ? Colors.buttonPressed : control.hovered ? Colors.buttonHover : Colors.combo;
        }
        border.width: control.activeFocus ? 2 : 1
        border.color: {
            if (!control.enabled)
                return Colors.separator;
            if (control.activeFocus)
                return Colors.focus;
            return control.hovered ? Colors.outlineHover : Colors.outline;
        }
    }
    popup: T.Popup {
        y: control.height + 1
        width: control.width
        height: Math.min(contentItem.implicitHeight + 2, control.Window.height - topMargin - bottomMargin)
        topMargin: 4
        bottomMargin: 4
        padding: 1

        contentItem: ListView {
            clip: true
            implicitHeight: contentHeight
            model: control.delegateModel
            currentIndex: control.highlightedIndex
            highlightMoveDuration: 0
            boundsBehavior: Flickable.StopAtBounds

            T.ScrollBar.vertical: ScrollBar {}
        }
        background: PopupSurface {}
    }
}
