import QtQuick
import QtQuick.Templates as T
import Tandolin.API.Core.Themes

T.TextField {
    id: control

    implicitWidth: implicitBackgroundWidth
    implicitHeight: Math.max(implicitBackgroundHeight, contentHeight + topPadding + bottomPadding)
    leftPadding: Metrics.padding
    rightPadding: Metrics.padding
    topPadding: 3
    bottomPadding: 3
    verticalAlignment: TextInput.AlignVCenter
    selectByMouse: true
    color: enabled ? Colors.text : Colors.textDisabled
    placeholderTextColor: enabled ? Colors.textSecondary : Colors.textDisabled
    selectionColor: Colors.selection
    selectedTextColor: Colors.text
    font.pointSize: Metrics.fontSize
    font.hintingPreference: Metrics.hinting
    renderType: Metrics.renderType

    onReleased: event => {
        // Made when it is wanted: a table may have a field in every row.
        if (event.button === Qt.RightButton)
            Qt.createComponent(Qt.resolvedUrl("EditMenu.qml")).createObject(control, {control: control});
    }

    Text {
        x: control.leftPadding
        y: control.topPadding
        width: control.width - control.leftPadding - control.rightPadding
        height: control.height - control.topPadding - control.bottomPadding
        visible: !control.length && !control.preeditText
        text: control.placeholderText
        color: control.placeholderTextColor
        font: control.font
        renderType: control.renderType
        verticalAlignment: control.verticalAlignment
        elide: Text.ElideRight
    }
    background: FieldSurface {
        control: control
        hovered: control.hovered
        readOnly: control.readOnly
    }
}
