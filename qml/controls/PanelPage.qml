import QtQuick.Controls

// The root of a panel: the panel's background, its margins, and a focus scope for what lies on it.
Pane {
    focus: true
}
