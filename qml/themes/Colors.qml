pragma Singleton

import QtQuick
import Tandolin.API.Core.Themes.Engine

// The theme's colours by what pages use them for. All follow a change of theme and single colours that the host sets.
QtObject {
    readonly property bool dark: Theme.dark

    readonly property color background: tint(Theme.colors.panelBackground)
    readonly property color ribbon: tint(Theme.colors.ribbonBackground)
    readonly property color popup: tint(Theme.colors.grey1)
    readonly property color input: tint(Theme.colors.inputBg)
    readonly property color combo: tint(Theme.colors.comboBackground)
    readonly property color tabStrip: tint(Theme.colors.panelsetIconStripBaseColor)
    readonly property color tabActive: tint(Theme.colors.panelsetIconStripActiveColor)

    readonly property color text: tint(Theme.colors.grey10)
    readonly property color textSecondary: tint(Theme.colors.grey8)
    readonly property color textDisabled: tint(Theme.colors.grey6)

    readonly property color separator: tint(Theme.colors.grey4)
    readonly property color border: tint(Theme.colors.grey5)
    // Strong enough to find a field or a box by its outline alone.
    readonly property color outline: tint(Theme.colors.grey6)
    readonly property color outlineHover: tint(Theme.colors.grey7)

    readonly property color button: tint(Theme.colors.buttonLightBg)
    readonly property color buttonHover: Theme.dark ? Qt.lighter(button, 1.15) : Qt.darker(button, 1.06)
    readonly property color buttonPressed: Theme.dark ? Qt.darker(button, 1.3) : Qt.darker(button, 1.14)
    readonly property color primary: tint(Theme.colors.blueButtonBg)
    readonly property color primaryHover: Qt.darker(primary, 1.1)
    readonly property color primaryPressed: Qt.darker(primary, 1.25)
    readonly property color primaryText: tint(Theme.dark ? Theme.colors.grey10 : Theme.colors.grey0)

    readonly property color hover: tint(Theme.colors.menuItemHoverBg)
    readonly property color selection: tint(Theme.colors.accentSoft)
    readonly property color accent: tint(Theme.colors.accentMedium)
    readonly property color accentStrong: tint(Theme.colors.accentHard)
    // What is drawn on the accent colour: the dark theme's accent is light.
    readonly property color accentText: tint(Theme.colors.grey0)
    readonly property color focus: tint(Theme.colors.blueHighlight)

    readonly property color warning: tint(Theme.colors.darkYellow)
    readonly property color error: tint(Theme.colors.red)
    readonly property color success: tint(Theme.colors.green)

    // A text that isn't "#rrggbb" is grey, as it is for the host.
    function tint(text: string): color {
        return text.length === 7 && text.charAt(0) === "#" ? text : "#c0c0c0";
    }
}
