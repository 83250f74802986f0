pragma Singleton

import QtQml

// The outlines of the marks as SVG paths in a square of 16, drawn with a line. Coordinates lie on half pixels, so that
// straight lines stay crisp.
QtObject {
    readonly property var outlines: ({
        "add": "M8.5 3 V14 M3 8.5 H14",
        "bigger-than": "M4.5 3.5 L12 8 L4.5 12.5",
        "bigger-than-equal": "M4.5 2.5 L12 6.5 L4.5 10.5 M4 13.5 H12",
        "check": "M3.5 8.5 L6.5 11.5 L12.5 4.5",
        "chevron-down": "M4.5 6.5 L8 10 L11.5 6.5",
        "chevron-left": "M9.5 4.5 L6 8 L9.5 11.5",
        "chevron-right": "M6.5 4.5 L10 8 L6.5 11.5",
        "chevron-up": "M4.5 9.5 L8 6 L11.5 9.5",
        "contains": "M5.5 3.5 H2.5 V13.5 H5.5 M10.5 3.5 H13.5 V13.5 H10.5 M6 8.5 H10",
        "copy": "M5.5 5.5 H13.5 V13.5 H5.5 Z M10.5 5.5 V2.5 H2.5 V10.5 H5.5",
        "cross": "M4.5 4.5 L11.5 11.5 M11.5 4.5 L4.5 11.5",
        "dash": "M4.5 8.5 H12.5",
        "delete": "M3 4.5 H14 M6.5 4 V2.5 H10.5 V4 M4.5 5 L5.5 13.5 H11.5 L12.5 5 M7.5 7 V11.5 M9.5 7 V11.5",
        "dwg": "M3.5 2.5 H9.5 L12.5 5.5 V13.5 H3.5 Z M9.5 2.5 V5.5 H12.5 M5.5 11.5 L10.5 8",
        "does-not-contain": "M5 3.5 H2.5 V13.5 H5 M11 3.5 H13.5 V13.5 H11 M6 6.5 L10 10.5 M10 6.5 L6 10.5",
        "does-not-match": "M6 2 V10 M2.5 4 L9.5 8 M9.5 4 L2.5 8 M10 10 L14 14 M14 10 L10 14",
        "edit": "M3 13.5 L3.5 10.5 L10.5 3.5 L13 6 L6 13 Z M9 5 L11.5 7.5",
        "error": "M8 2 A6 6 0 1 1 7.99 2 Z M5.8 5.8 L10.2 10.2 M10.2 5.8 L5.8 10.2",
        "filter": "M2.5 3.5 H13.5 L9.5 8.5 V13.5 L6.5 11.5 V8.5 Z",
        "folder": "M2.5 12.5 V3.5 H6.5 L8 5.5 H13.5 V12.5 Z",
        "help": "M8 2 A6 6 0 1 1 7.99 2 Z M6 6.4 A2 2 0 1 1 8 8.4 V9.3 M8 11.4 V11.7",
        "info": "M8 2 A6 6 0 1 1 7.99 2 Z M8 7.5 V11.5 M8 4.9 V5.4",
        "is": "M3.5 6.5 H12.5 M3.5 10.5 H12.5",
        "is-not": "M3.5 6.5 H12.5 M3.5 10.5 H12.5 M10.5 3.5 L5.5 13.5",
        "lock": "M3.5 7.5 H12.5 V13.5 H3.5 Z M5.5 7.5 V5 A2.5 2.5 0 0 1 10.5 5 V7.5",
        "matches": "M8 3 V13 M3.7 5.5 L12.3 10.5 M12.3 5.5 L3.7 10.5",
        "more": "M4 8 H4.4 M7.8 8 H8.2 M11.6 8 H12",
        "pin": "M5.5 2.5 H10.5 M6.5 2.5 V7 L4.5 9.5 H11.5 L9.5 7 V2.5 M8 9.5 V14",
        "pipette": "M3 13.5 V11 L8.5 5.5 L11 8 L5.5 13.5 Z M7 4 L12.5 9.5 M9.75 6.75 L12.5 4",
        "refresh": "M12.5 5.5 A5.2 5.2 0 1 0 13.2 8.5 M12.5 2 V5.5 H9",
        "remove": "M3 4.5 H14 M6.5 4 V2.5 H10.5 V4 M4.5 5 L5.5 13.5 H11.5 L12.5 5 M7.5 7 V11.5 M9.5 7 V11.5",
        "save": "M2.5 2.5 H11 L13.5 5 V13.5 H2.5 Z M5.5 2.5 V5.5 H10 V2.5 M5 13.5 V9.5 H11 V13.5",
        "search": "M7 2.5 A4.5 4.5 0 1 1 6.99 2.5 Z M10.5 10.5 L14 14",
        "settings": "M2 4.5 H7 M11 4.5 H14 M11 4.5 A2 2 0 1 1 11 4.49 Z M2 11.5 H5 M9 11.5 H14 M9 11.5 A2 2 0 1 1 9 11.49 Z",
        "sheetset-view": "M2.5 3.5 H13.5 V12.5 H2.5 Z M5 5.5 H11 V9 H5 Z M8.5 10.8 H11.5",
        "target": "M8 4 A4 4 0 1 1 7.99 4 Z M8 1.5 V6 M8 10 V14.5 M1.5 8 H6 M10 8 H14.5",
        "smaller-than": "M11.5 3.5 L4 8 L11.5 12.5",
        "smaller-than-equal": "M11.5 2.5 L4 6.5 L11.5 10.5 M4 13.5 H12",
        "unpin": "M5.5 2.5 H10.5 M6.5 2.5 V7 L4.5 9.5 H11.5 L9.5 7 V2.5 M8 9.5 V14 M3 13.5 L13.5 3",
        "warning": "M8 2.5 L14.5 13.5 H1.5 Z M8 6.5 V10 M8 11.6 V11.9"
    })

    // The mark of an icon that a model names by its file, "copy.svg"; empty for any other.
    function nameOf(icon: var): string {
        const name = String(icon ?? "").replace(/\.svg$/, "");
        return name in outlines ? name : "";
    }
}
