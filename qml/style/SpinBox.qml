import QtQuick
import QtQuick.Templates as T
import Tandolin.API.Core.Themes

T.SpinBox {
    id: control

    implicitWidth: implicitBackgroundWidth
    implicitHeight: Math.max(implicitBackgroundHeight, implicitContentHeight + topPadding + bottomPadding)
    leftPadding: Metrics.padding + (mirrored ? up.indicator.width : 0)
    rightPadding: Metrics.padding + (mirrored ? 0 : up.indicator.width)
    editable: true
    font.pointSize: Metrics.fontSize
    font.hintingPreference: Metrics.hinting
    validator: IntValidator {
        bottom: Math.min(control.from, control.to)
        top: Math.max(control.from, control.to)
    }

    contentItem: TextInput {
        text: control.displayText
        readOnly: !control.editable
        validator: control.validator
        inputMethodHints: control.inputMethodHints
        selectByMouse: true
        font: control.font
        renderType: Metrics.renderType
        color: control.enabled ? Colors.text : Colors.textDisabled
        selectionColor: Colors.selection
        selectedTextColor: Colors.text
        verticalAlignment: Qt.AlignVCenter
        clip: width < implicitWidth
    }
    up.indicator: StepButton {
        x: control.mirrored ? 2 : control.width - width - 2
        y: 2
        height: (control.height - 4) / 2
        enabled: control.enabled && control.value !== control.to
        pressed: control.up.pressed
        hovered: control.up.hovered
        mark: "chevron-up"
    }
    down.indicator: StepButton {
        x: control.mirrored ? 2 : control.width - width - 2
        y: control.height - height - 2
        height: (control.height - 4) / 2
        enabled: control.enabled && control.value !== control.from
        pressed: control.down.pressed
        hovered: control.down.hovered
        mark: "chevron-down"
    }
    background: FieldSurface {
        implicitWidth: 80
        control: control
        hovered: control.hovered
    }
}
