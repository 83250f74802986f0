import QtQuick
import QtQuick.Controls
import Tandolin.API.Core.Themes

// A transparency from 0 to 90.
ValueEditor {
    id: editor

    Row {
        spacing: Metrics.spacing

        NumberField {
            id: field

            objectName: "field"
            width: 60
            focus: true
            whole: true
            from: 0
            to: 90
            number: editor.current
            unit: editor.unit
            onEntered: number => editor.edit(number | 0)
        }
        Slider {
            objectName: "slider"
            width: editor.width - field.width - parent.spacing
            from: field.from
            to: field.to
            stepSize: 1
            snapMode: Slider.SnapAlways
            value: field.isValue(editor.current) ? editor.current : 0
            onMoved: editor.edit(value | 0)
        }
    }
}
