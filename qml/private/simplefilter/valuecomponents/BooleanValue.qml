import QtQuick
import QtQuick.Controls
import Tandolin.API.Core.Themes

// False or true. The arrows go from one to the other.
ValueEditor {
    id: editor

    function choose(row: int) {
        edit(row === 1);
        choices.itemAt(row)?.forceActiveFocus(Qt.TabFocusReason);
    }

    Keys.onUpPressed: choose(0)
    Keys.onLeftPressed: choose(0)
    Keys.onDownPressed: choose(1)
    Keys.onRightPressed: choose(1)

    Row {
        spacing: Metrics.margin

        Repeater {
            id: choices

            model: editor.values

            // qmllint disable unqualified
            RadioButton {
                required property string modelData
                required property int index
                readonly property bool means: index === 1

                objectName: "choice" + index
                text: modelData.replace(/&/g, "&&")
                autoExclusive: false
                focus: means === (editor.current === true)
                checked: editor.current === means
                onClicked: editor.choose(index)
            }
            // qmllint enable unqualified
        }
    }
}
