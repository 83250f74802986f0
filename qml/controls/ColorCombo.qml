import QtQuick
import Tandolin.API.Controls

// Shows and sets a colour. The model is a ColorModel.
PropertyCombo {
    id: control

    function choose(row: int) {
        model.onClicked(row);
    }

    function nameOf(object: var): string {
        if (object?.type === "varies")
            return "*Varies*";
        return object?.type === "load" ? qsTr("Select colour...") : object?.name ?? "";
    }

    function kindOf(object: var, row: int): string {
        return object?.type === "varies" || object?.type === "load" ? object.type : "";
    }

    picture: PropertyComboPicture {
        id: picture

        // The rows aren't made anew for another layer.
        readonly property bool isByLayer: object?.type === "" && object.colorIndex === 0

        ColorSwatch {
            anchors.centerIn: parent
            width: Math.min(parent.width, parent.height)
            height: width
            diagonal: picture.object?.drawDiagonal ?? false
            color: {
                if (!picture.isByLayer)
                    return picture.object?.color ?? "transparent";
                return control.model.byLayerAsBlack ? "black" : control.model.byLayerColor;
            }
        }
    }
}
