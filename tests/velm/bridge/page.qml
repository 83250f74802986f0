import QtQml

QtObject {
    objectName: "the page"
}
