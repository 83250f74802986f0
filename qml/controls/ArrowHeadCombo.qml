import QtQuick
import Tandolin.API.Controls

// Shows and sets an arrowhead. The model is an ArrowHeadModel. The row of an arrowhead that is none of the usual ones has no
// object there: the page says what it is.
PropertyCombo {
    id: control

    property string extraName
    // An image, or null.
    property var extraImage: null

    // The user chose the row: the page's controller makes it current.
    signal chosen(int index)

    function choose(row: int) {
        if (kindAt(row) === "load")
            model.showArrowHeadsDialog(row);
        else
            chosen(row);
    }

    function nameOf(object: var): string {
        return object ? object.arrowHeadName : extraName;
    }

    function kindOf(object: var, row: int): string {
        return row >= 0 && row === count - 1 ? "load" : "";
    }

    defaultPictureSize: Qt.size(32, 16)
    picture: PropertyComboImage {
        image: object ? object.arrowHeadPreview : object === null ? control.extraImage : null
    }
}
