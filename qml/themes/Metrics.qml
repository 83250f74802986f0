pragma Singleton

import QtQuick
import Tandolin

// The sizes and fonts of pages: compact, as a panel beside a drawing wants it.
QtObject {
    readonly property real fontSize: 9
    readonly property real smallFontSize: 8
    // The tools don't know the enumerations of these two.
    // qmllint disable
    readonly property int hinting: QtFontConfig.defaultHintingPreference
    readonly property int renderType: QtFontConfig.defaultRenderType
    // qmllint enable

    readonly property int rowHeight: 24
    readonly property int controlHeight: 24
    readonly property int buttonWidth: 76
    readonly property int fieldWidth: 120
    readonly property int markSize: 16
    readonly property int boxSize: 14

    readonly property int spacing: 6
    readonly property int padding: 6
    readonly property int margin: 10
    readonly property int radius: 3
}
