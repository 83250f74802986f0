import QtQuick
import QtQuick.Controls
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// A field for a text, with a list of suggestions below it: all of them by the arrow or Alt+Down, those that hold what is
// typed while it is typed. The keyboard stays with the field.
TextField {
    id: control

    property var suggestions: []
    readonly property alias opened: popup.visible
    property string wanted
    readonly property var matching: {
        const letters = wanted.toLowerCase();
        return suggestions.filter(text => text.toLowerCase().includes(letters));
    }

    // The text was typed or chosen.
    signal edited

    function open(letters: string) {
        wanted = letters;
        if (matching.length === 0) {
            popup.close();
            return;
        }
        list.currentIndex = matching.indexOf(text);
        popup.open();
    }

    function choose(row: int) {
        popup.close();
        text = matching[row];
        selectAll();
        edited();
    }

    function enter(event) {
        event.accepted = opened && list.currentIndex >= 0;
        if (event.accepted)
            choose(list.currentIndex);
        popup.close();
    }

    rightPadding: arrow.visible ? arrow.width + 4 : Metrics.padding
    onTextEdited: {
        edited();
        if (text === "")
            popup.close();
        else
            open(text);
    }
    onActiveFocusChanged: {
        if (activeFocus)
            selectAll();
        else
            popup.close();
    }
    Keys.onReturnPressed: event => enter(event)
    Keys.onEnterPressed: event => enter(event)
    Keys.onEscapePressed: event => {
        event.accepted = opened;
        popup.close();
    }
    Keys.onDownPressed: {
        if (!opened)
            open("");
        else
            list.currentIndex = Math.min(list.count - 1, list.currentIndex + 1);
    }
    Keys.onUpPressed: list.currentIndex = Math.max(0, list.currentIndex - 1)

    IconButton {
        id: arrow

        objectName: "suggest"
        x: control.width - width - 2
        width: 20
        height: 20
        anchors.verticalCenter: parent.verticalCenter
        visible: control.suggestions.length > 0 && !control.readOnly
        focusPolicy: Qt.NoFocus
        mark: "chevron-down"
        markColor: Colors.textSecondary
        text: qsTr("Suggestions")
        onClicked: {
            const wasOpen = control.opened;
            control.forceActiveFocus();
            if (wasOpen)
                popup.close();
            else
                control.open("");
        }
    }
    Popup {
        id: popup

        objectName: "suggestions"
        y: control.height + 1
        width: control.width
        height: Math.min(8, list.count) * Metrics.rowHeight + 2
        margins: 4
        padding: 1
        // A press on the arrow or in the text is the field's.
        closePolicy: Popup.CloseOnPressOutsideParent

        ListView {
            id: list

            objectName: "list"
            anchors.fill: parent
            clip: true
            model: control.matching
            currentIndex: -1
            highlightMoveDuration: 0
            boundsBehavior: Flickable.StopAtBounds
            // qmllint disable unqualified
            delegate: ItemDelegate {
                required property string modelData
                required property int index

                width: ListView.view.width
                text: modelData.replace(/&/g, "&&")
                highlighted: ListView.isCurrentItem
                focusPolicy: Qt.NoFocus
                onClicked: control.choose(index)
            }
            // qmllint enable unqualified
            ScrollBar.vertical: ScrollBar {}
        }
    }
}
