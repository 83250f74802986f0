import QtQuick
import QtQuick.Templates as T
import Tandolin.API.Core.Themes

T.Button {
    id: control

    implicitWidth: Math.max(Metrics.buttonWidth, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(implicitBackgroundHeight, implicitContentHeight + topPadding + bottomPadding)
    horizontalPadding: Metrics.padding + 4
    verticalPadding: 3
    spacing: Metrics.spacing
    font.pointSize: Metrics.fontSize
    font.hintingPreference: Metrics.hinting
    icon.width: Metrics.markSize
    icon.height: Metrics.markSize

    contentItem: Caption {
        control: control
        centred: true
        color: {
            if (!control.enabled)
                return Colors.textDisabled;
            return control.highlighted ? Colors.primaryText : Colors.text;
        }
    }
    background: ButtonSurface {
        control: control
        flat: control.flat
        primary: control.highlighted
    }
}
