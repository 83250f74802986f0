import Tandolin.API.Resources
import Tandolin.API.Core.Themes

// One of the marks of MarkPaths in a colour; an unknown name draws nothing.
MarkDrawing {
    property string name

    outline: MarkPaths.outlines[name] ?? ""
    color: enabled ? Colors.text : Colors.textDisabled
    lineWidth: 1.3
    implicitWidth: Metrics.markSize
    implicitHeight: Metrics.markSize
}
