import QtQuick
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// Shows and sets a lineweight. The model is a LineWeightModel.
PropertyCombo {
    id: control

    function choose(row: int) {
        model.onChangeCurrentComboIndex(row);
    }

    function nameOf(object: var): string {
        return object?.lineWeightName ?? "";
    }

    function kindOf(object: var, row: int): string {
        return nameOf(object) === "*Varies*" ? "varies" : "";
    }

    defaultPictureSize: Qt.size(40, 14)
    picture: PropertyComboPicture {
        id: picture

        // A weight is seen, however small, and so is one that comes from elsewhere.
        Rectangle {
            objectName: "stroke"
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width
            height: Math.max(1, Math.round(parent.height * (picture.object?.lineWeightFactor ?? 0)))
            color: Colors.text
        }
    }
}
