import QtQuick
import QtQuick.Controls
import QtQuick.Templates as T
import QtQuick.Window
import Tandolin
import Tandolin.API.Controls
import Tandolin.API.Core.Themes
import Tandolin.API.Resources

// What the combos of colour, linetype, lineweight and arrowhead share: a box that shows the current row of the host's model,
// and a list in a window of its own, for the page may be no higher than the box. The keyboard stays with the box. The model
// alone says which row is current: a person's choice is told to it, and the box shows what came of that.
T.AbstractButton {
    id: control

    // One of the host's models, with the objects of its rows in role 0; may be null.
    required property var model
    // A PropertyComboPicture.
    property Component picture: null
    property size defaultPictureSize: Qt.size(Metrics.markSize, Metrics.markSize)
    // As large as the host says.
    readonly property size pictureSize: {
        const wanted = model?.size;
        return wanted && wanted.width > 0 && wanted.height > 0 ? wanted : defaultPictureSize;
    }

    // An owner that shares the model says so itself.
    property int currentIndex: changes >= 0 ? model?.currentIndex ?? -1 : -1
    readonly property var currentObject: changes >= 0 ? objectAt(currentIndex) : undefined
    readonly property string currentName: (contentItem as PropertyComboFace)?.name ?? ""
    readonly property int count: changes >= 0 ? model?.rowCount() ?? 0 : 0
    readonly property alias opened: list.visible
    // The row of the open list that Enter chooses.
    property int highlightedIndex: -1
    // How often the rows changed.
    property int changes: 0

    // Each combo has these three of its own. What becomes of a chosen row:
    function choose(row: int) {}

    // The name of a row's object, which is null for a row without one.
    function nameOf(object: var): string {
        return "";
    }

    // "" for a value, "varies" for the row that only says so, "load" for one that opens a dialog.
    function kindOf(object: var, row: int): string {
        return "";
    }

    // Undefined where there is no row.
    function objectAt(row: int): var {
        return model && row >= 0 && row < model.rowCount() ? model.data(model.index(row, 0), 0) : undefined;
    }

    function nameAt(row: int): string {
        const object = objectAt(row);
        return object === undefined ? "" : nameOf(object);
    }

    function kindAt(row: int): string {
        return kindOf(objectAt(row), row);
    }

    // The nearest row that may be gone to, from this one on in steps of 1 or -1; -1 when there is none. A dialog opens only
    // from the list.
    function nearest(row: int, step: int): int {
        const passes = row => opened ? kindAt(row) === "varies" : kindAt(row) !== "";
        while (row >= 0 && row < count && passes(row))
            row += step;
        return row >= 0 && row < count ? row : -1;
    }

    // Chooses a row, or in the open list only highlights it.
    function moveTo(row: int) {
        if (row < 0)
            return;
        if (opened)
            highlightedIndex = row;
        else if (row !== currentIndex)
            choose(row);
    }

    function open() {
        if (opened || count === 0 || !enabled || !visible)
            return;
        highlightedIndex = currentIndex;
        place();
        list.show();
    }

    function close() {
        list.hide();
    }

    function toggle() {
        if (opened)
            close();
        else
            open();
    }

    function finish(row: int) {
        const kind = kindAt(row);
        close();
        if (kind === "load") {
            later.row = row;
            later.restart();
        } else if (kind === "" && row >= 0 && row < count) {
            choose(row);
        }
    }

    // The screen that the box is on, which need not be that of the page's window.
    function screenOfBox(): var {
        const centre = mapToGlobal(width / 2, height / 2);
        const screens = Array.from(Qt.application.screens);
        const isOn = screen => centre.x >= screen.virtualX && centre.x < screen.virtualX + screen.width
            && centre.y >= screen.virtualY && centre.y < screen.virtualY + screen.height;
        return screens.find(isOn) ?? screens[0];
    }

    // Below the box, or above it where there is more room.
    function place() {
        const box = mapToGlobal(0, 0);
        const screen = screenOfBox();
        const wantedHeight = count * list.rowHeight + 2;
        const below = screen.virtualY + screen.height - (box.y + height + 1);
        const above = box.y - 1 - screen.virtualY;
        const opensBelow = wantedHeight <= below || below >= above;
        const rowsFitting = Math.max(1, Math.floor(((opensBelow ? below : above) - 2) / list.rowHeight));
        list.height = Math.min(wantedHeight, rowsFitting * list.rowHeight + 2);

        let widest = 0;
        for (let row = 0; row < count; ++row) {
            const indent = kindAt(row) === "" ? pictureSize.width + Metrics.spacing : 0;
            widest = Math.max(widest, indent + metrics.advanceWidth(nameAt(row)));
        }
        const barWidth = list.height < wantedHeight ? 12 : 0;
        list.width = Math.min(screen.width, Math.max(width, Math.ceil(widest) + 2 * Metrics.padding + barWidth + 4));
        list.x = Math.max(screen.virtualX, Math.min(box.x, screen.virtualX + screen.width - list.width));
        list.y = opensBelow ? box.y + height + 1 : box.y - 1 - list.height;
    }

    function rowsChanged() {
        close();
        later.stop();
        ++changes;
    }

    implicitWidth: leftPadding + pictureSize.width + Metrics.spacing + Metrics.fieldWidth
    implicitHeight: Math.max(Metrics.controlHeight, pictureSize.height + 4)
    leftPadding: Metrics.padding + (mirrored ? indicator.width : 0)
    rightPadding: Metrics.padding + (mirrored ? 0 : indicator.width)
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    font.pointSize: Metrics.fontSize
    font.hintingPreference: Metrics.hinting
    Accessible.role: Accessible.ComboBox
    Accessible.name: model?.tooltip ?? ""
    Accessible.description: currentName

    onClicked: toggle()
    onActiveFocusChanged: leaving.restart()
    onVisibleChanged: close()
    onEnabledChanged: close()
    onModelChanged: rowsChanged()
    onHighlightedIndexChanged: rows.showHighlighted()

    Keys.onPressed: event => {
        const from = opened ? highlightedIndex : currentIndex;
        const page = opened ? Math.max(1, Math.floor(rows.height / list.rowHeight) - 1) : count;
        const vertical = event.key === Qt.Key_Up || event.key === Qt.Key_Down;
        event.accepted = true;
        if (event.key === Qt.Key_F4 || vertical && event.modifiers & Qt.AltModifier)
            toggle();
        else if (event.modifiers & (Qt.AltModifier | Qt.ControlModifier | Qt.MetaModifier))
            event.accepted = false;
        else if (event.key === Qt.Key_Up)
            moveTo(nearest(from < 0 ? count - 1 : from - 1, -1));
        else if (event.key === Qt.Key_Down)
            moveTo(nearest(from + 1, 1));
        else if (event.key === Qt.Key_Home)
            moveTo(nearest(0, 1));
        else if (event.key === Qt.Key_End)
            moveTo(nearest(count - 1, -1));
        else if (event.key === Qt.Key_PageUp)
            moveTo(nearest(Math.max(0, from - page), 1));
        else if (event.key === Qt.Key_PageDown)
            moveTo(nearest(Math.min(count - 1, from + page), -1));
        else if (opened && event.key === Qt.Key_Escape)
            close();
        else if (typed.take(event))
            return;
        else if (opened && [Qt.Key_Return, Qt.Key_Enter, Qt.Key_Space].includes(event.key))
            finish(highlightedIndex);
        else
            event.accepted = false;
    }

    contentItem: PropertyComboFace {
        combo: control
        object: control.currentObject
        kind: control.kindOf(object, control.currentIndex)
    }
    indicator: Mark {
        x: control.mirrored ? 4 : control.width - width - 4
        y: (control.height - height) / 2
        name: "chevron-down"
        color: control.enabled ? Colors.textSecondary : Colors.textDisabled
    }
    background: Rectangle {
        radius: Metrics.radius
        color: {
            if (!control.enabled)
                return "transparent";
            return control.down || control.opened ? Colors.buttonPressed : control.hovered ? Colors.buttonHover : Colors.combo;
        }
        border.width: control.activeFocus ? 2 : 1
        border.color: {
            if (!control.enabled)
                return Colors.separator;
            if (control.activeFocus)
                return Colors.focus;
            return control.hovered ? Colors.outlineHover : Colors.outline;
        }
    }

    Connections {
        target: control.model as QtObject

        function onModelReset() {
            control.rowsChanged();
        }
        function onRowsInserted() {
            control.rowsChanged();
        }
        function onRowsRemoved() {
            control.rowsChanged();
        }
        function onDataChanged() {
            ++control.changes;
        }
    }

    TypedLetters {
        id: typed

        onWanted: letters => {
            const current = control.opened ? control.highlightedIndex : control.currentIndex;
            const first = Math.max(0, current + (letters.length > 1 ? 0 : 1));
            for (let step = 0; step < control.count; ++step) {
                const row = (first + step) % control.count;
                if (control.nameAt(row).toLowerCase().startsWith(letters.toLowerCase()) && control.nearest(row, 1) === row) {
                    control.moveTo(row);
                    return;
                }
            }
        }
    }
    // A window manager may take the keyboard for a moment while it hands on the click that opened the list.
    Timer {
        id: leaving

        interval: 100
        onTriggered: {
            if (!control.activeFocus)
                control.close();
        }
    }
    // A dialog is opened when nothing of the list is at work any more.
    Timer {
        id: later

        property int row: -1

        interval: 0
        onTriggered: control.choose(row)
    }
    FontMetrics {
        id: metrics

        font: control.font
    }
    WheelHandler {
        property real turned: 0

        onWheel: event => {
            turned += event.angleDelta.y || event.angleDelta.x;
            const step = turned < 0 ? 1 : -1;
            while (Math.abs(turned) >= 120) {
                turned += 120 * step;
                if (!control.opened)
                    control.moveTo(control.nearest(control.currentIndex + step, step));
            }
        }
    }
    // Hears of a press beside the box where the page leaves the keyboard as it is.
    T.Popup {
        visible: list.visible
        closePolicy: T.Popup.CloseOnPressOutsideParent
        onClosed: control.close()
    }

    readonly property Window listWindow: Window {
        id: list

        readonly property int rowHeight: Math.max(Metrics.rowHeight, control.pictureSize.height + 4)

        objectName: "list"
        // A window of this kind takes neither the keyboard nor the window manager's care.
        flags: Qt.ToolTip | Qt.FramelessWindowHint | Qt.NoDropShadowWindowHint | Qt.WindowDoesNotAcceptFocus
        color: Colors.popup

        ListView {
            id: rows

            property point lastPlace

            function showHighlighted() {
                forceLayout();
                positionViewAtIndex(control.highlightedIndex, ListView.Contain);
            }

            objectName: "rows"
            // The window's contents take its size later.
            x: 1
            y: 1
            width: list.width - 2
            height: list.height - 2
            clip: true
            model: list.visible ? control.model : null
            // The highlight is not the view's: another model would move that.
            currentIndex: -1
            onCountChanged: showHighlighted()
            boundsBehavior: Flickable.StopAtBounds
            // qmllint disable unqualified
            delegate: ItemDelegate {
                id: row

                required property var model
                required property int index
                readonly property string kind: control.kindOf(model.object, index)

                width: ListView.view.width
                height: list.rowHeight
                enabled: kind !== "varies"
                highlighted: control.highlightedIndex === index
                focusPolicy: Qt.NoFocus
                font.bold: control.currentIndex === index
                onClicked: control.finish(index)

                contentItem: PropertyComboFace {
                    combo: control
                    object: row.model.object
                    kind: row.kind
                }
            }
            // qmllint enable unqualified
            ScrollBar.vertical: ScrollBar {}

            HoverHandler {
                // Rows that are scrolled below a still mouse leave the highlight to the keys.
                onPointChanged: {
                    const place = point.scenePosition;
                    if (place === rows.lastPlace)
                        return;
                    rows.lastPlace = place;
                    const row = rows.indexAt(place.x, place.y + rows.contentY);
                    if (row >= 0 && control.kindAt(row) !== "varies")
                        control.highlightedIndex = row;
                }
            }
        }
        Rectangle {
            anchors.fill: parent
            color: "transparent"
            border.color: Colors.outline
        }
    }

    PropertyComboTip {
        control: control
        text: control.model?.tooltip ?? ""
        wanted: Settings.tooltips && control.hovered && !control.down && !control.opened
    }
}
