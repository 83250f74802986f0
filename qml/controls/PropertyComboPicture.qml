import QtQuick

// The picture of a combo's row. A combo has one for its box and one for each row of its list.
Item {
    // The row's object in the model; undefined without a row.
    property var object: undefined
    // "varies" and "load" for the rows that are no value.
    property string kind
}
