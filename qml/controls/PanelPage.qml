import QtQuick
import QtQuick.Controls
import Tandolin

// The root of a panel: the panel's background, its margins, and a focus scope for what lies on it. F1 opens the page of
// the manual that helpKey names, as a HelpButton does.
Pane {
    id: page

    property string helpKey

    focus: true
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_F1 && helpKey !== "";
        if (event.accepted)
            docs.open(helpKey);
    }

    WebDocUtils {
        id: docs
    }
}
