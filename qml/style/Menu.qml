import QtQuick
import QtQuick.Templates as T
import Tandolin.API.Core.Themes

T.Menu {
    id: control

    implicitWidth: Math.max(implicitBackgroundWidth, contentWidth + leftPadding + rightPadding)
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    margins: 0
    overlap: 1
    padding: 1
    verticalPadding: 3
    font.pointSize: Metrics.fontSize
    font.hintingPreference: Metrics.hinting

    // Chooses the entry that the letter stands for; of several the next one, which waits for Enter then.
    function takeLetter(letter: string): bool {
        const rows = [];
        for (let row = 0; row < count; ++row) {
            const item = itemAt(row) as T.MenuItem;
            const name = item?.enabled ? /&([^&])/.exec(item.text.replace(/&&/g, "")) : null;
            if (name && name[1].toLowerCase() === letter.toLowerCase())
                rows.push(row);
        }
        if (rows.length === 0)
            return false;
        currentIndex = rows.find(row => row > currentIndex) ?? rows[0];
        if (rows.length === 1)
            (itemAt(currentIndex) as T.MenuItem).triggered();
        return true;
    }

    delegate: MenuItem {}
    contentItem: ListView {
        implicitWidth: {
            let width = 0;
            for (let row = 0; row < count; ++row)
                width = Math.max(width, control.itemAt(row)?.implicitWidth ?? 0);
            return width;
        }
        implicitHeight: contentHeight
        model: control.contentModel
        focus: true
        keyNavigationEnabled: false
        interactive: Window.window ? contentHeight + control.topPadding + control.bottomPadding > control.height : false
        clip: true
        currentIndex: control.currentIndex
        boundsBehavior: Flickable.StopAtBounds
        Keys.onPressed: event => {
            const plain = !(event.modifiers & ~Qt.ShiftModifier);
            event.accepted = plain && event.text > " " && control.takeLetter(event.text);
        }

        T.ScrollIndicator.vertical: ScrollIndicator {}
    }
    background: PopupSurface {
        implicitWidth: 140
    }
}
