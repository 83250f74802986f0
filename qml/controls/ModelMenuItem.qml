import QtQuick
import QtQuick.Controls
import Tandolin
import Tandolin.API.Core.Themes

// A row of a menu that is made from a model: mark, picture, text, and the shortcut at the right.
MenuItem {
    id: control

    // What the model says of the row; set by the menu.
    property var entry: ({})
    // Which columns the rows beside it have.
    property bool markColumn: false
    property bool pictureColumn: false

    objectName: "menu:" + text
    text: entry.text ?? ""
    enabled: entry.enabled ?? true
    checkable: entry.checkable ?? false
    Accessible.description: entry.tooltip ?? ""

    ToolTip.text: entry.tooltip ?? ""
    ToolTip.visible: Settings.tooltips && hovered && !subMenu && ToolTip.text !== ""
    ToolTip.delay: Settings.tooltipDelay

    // The model alone says what is checked.
    onEntryChanged: checked = entry.checked ?? false

    contentItem: ModelMenuCaption {
        control: control
    }
}
