import QtQuick
import QtQuick.Controls
import Tandolin

// Opens a page of the manual in the desktop's browser; the tool tip tells the page's address. Without a key it is not
// there.
IconButton {
    id: control

    // The name of the page.
    property string key
    readonly property string address: key === "" ? "" : docs.getUrl(key)

    visible: key !== ""
    mark: "help"
    text: qsTr("Help")
    ToolTip.text: address === "" ? text : text + "\n" + decodeURIComponent(address)
    onClicked: docs.open(key)

    WebDocUtils {
        id: docs
    }
}
