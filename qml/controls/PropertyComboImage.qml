import QtQuick
import Tandolin.API.Controls

// A row's picture that is an image, or null.
PropertyComboPicture {
    id: picture

    property var image: null

    ResizedImage {
        id: shown

        anchors.fill: parent
        visible: Boolean(picture.image)
    }
    Binding {
        target: shown
        property: "image"
        value: picture.image
        when: Boolean(picture.image)
        restoreMode: Binding.RestoreNone
    }
}
