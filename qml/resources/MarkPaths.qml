pragma Singleton

import QtQml

// The outlines of the marks as SVG paths in a square of 16, drawn with a line. Coordinates lie on half pixels, so that
// straight lines stay crisp.
QtObject {
    readonly property var outlines: ({
        "add": "M8.5 3 V14 M3 8.5 H14",
        "check": "M3.5 8.5 L6.5 11.5 L12.5 4.5",
        "chevron-down": "M4.5 6.5 L8 10 L11.5 6.5",
        "chevron-left": "M9.5 4.5 L6 8 L9.5 11.5",
        "chevron-right": "M6.5 4.5 L10 8 L6.5 11.5",
        "chevron-up": "M4.5 9.5 L8 6 L11.5 9.5",
        "cross": "M4.5 4.5 L11.5 11.5 M11.5 4.5 L4.5 11.5",
        "dash": "M4.5 8.5 H12.5",
        "delete": "M3 4.5 H14 M6.5 4 V2.5 H10.5 V4 M4.5 5 L5.5 13.5 H11.5 L12.5 5 M7.5 7 V11.5 M9.5 7 V11.5",
        "edit": "M3 13.5 L3.5 10.5 L10.5 3.5 L13 6 L6 13 Z M9 5 L11.5 7.5",
        "error": "M8 2 A6 6 0 1 1 7.99 2 Z M5.8 5.8 L10.2 10.2 M10.2 5.8 L5.8 10.2",
        "filter": "M2.5 3.5 H13.5 L9.5 8.5 V13.5 L6.5 11.5 V8.5 Z",
        "folder": "M2.5 12.5 V3.5 H6.5 L8 5.5 H13.5 V12.5 Z",
        "info": "M8 2 A6 6 0 1 1 7.99 2 Z M8 7.5 V11.5 M8 4.9 V5.4",
        "lock": "M3.5 7.5 H12.5 V13.5 H3.5 Z M5.5 7.5 V5 A2.5 2.5 0 0 1 10.5 5 V7.5",
        "more": "M4 8 H4.4 M7.8 8 H8.2 M11.6 8 H12",
        "pin": "M5.5 2.5 H10.5 M6.5 2.5 V7 L4.5 9.5 H11.5 L9.5 7 V2.5 M8 9.5 V14",
        "refresh": "M12.5 5.5 A5.2 5.2 0 1 0 13.2 8.5 M12.5 2 V5.5 H9",
        "save": "M2.5 2.5 H11 L13.5 5 V13.5 H2.5 Z M5.5 2.5 V5.5 H10 V2.5 M5 13.5 V9.5 H11 V13.5",
        "search": "M7 2.5 A4.5 4.5 0 1 1 6.99 2.5 Z M10.5 10.5 L14 14",
        "settings": "M2 4.5 H7 M11 4.5 H14 M11 4.5 A2 2 0 1 1 11 4.49 Z M2 11.5 H5 M9 11.5 H14 M9 11.5 A2 2 0 1 1 9 11.49 Z",
        "warning": "M8 2.5 L14.5 13.5 H1.5 Z M8 6.5 V10 M8 11.6 V11.9"
    })
}
