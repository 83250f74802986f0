import QtQuick
import QtQuick.Controls
import Tandolin.API.Controls
import Tandolin.API.Core.Themes
import Tandolin.API.Resources

// A menu whose rows come from a MenuModel. They are made anew each time it is about to open; it closes when
// rows come or go. The command of a row runs when the menu is closed and nothing of it is at work any more.
Menu {
    id: control

    property var model: null
    // The row whose children are shown; sub-menus set it.
    property var rootIndex: undefined
    // Of a sub-menu: the menu that it belongs to.
    property var rootMenu: control

    // From its opening to its end.
    property bool built: false
    property var chosen: undefined
    // The row whose sub-menu is being added.
    property var added: ({})

    // The command of the row has run.
    signal triggered(var index)

    // What a menu shows of a row; other kinds of models are read by other menus.
    function read(index): var {
        const value = role => control.model.data(index, role);
        const type = value(5);
        const rows = control.model.rowCount(index);
        return {
            kind: type === "separator" || type === "title" ? type : rows > 0 || type === "submenu" ? "submenu" : "text",
            text: type === "title" ? control.model.getMenuItemLabelText(index) : value(256) ?? "",
            tooltip: value(3) ?? "",
            named: (value(258) ?? value(257) ?? "") !== "",
            picture: Icons.source(value(258) ?? value(257)),
            mark: MarkPaths.nameOf(value(257)),
            enabled: (value(259) ?? true) && (type !== "submenu" || rows > 0),
            checkable: value(260) ?? false,
            checked: value(261) ?? false,
            shortcut: value(262) ?? ""
        };
    }

    // Runs the command of a row.
    function run(index) {
        control.model.menuItemTriggered(index);
    }

    // Opens the menu with its first row chosen, for the arrows to go on from.
    function openByKey(parent: Item, x: real, y: real) {
        popup(parent, x, y);
        for (let row = 0; row < count; ++row) {
            if (itemAt(row).activeFocusOnTab && itemAt(row).enabled) {
                currentIndex = row;
                break;
            }
        }
    }

    function indexOf(row: int): var {
        return rootIndex === undefined ? model.index(row, 0) : model.index(row, 0, rootIndex);
    }

    function clear() {
        while (count > 0) {
            const menu = menuAt(0);
            removeItem(itemAt(0));
            menu?.destroy();
        }
    }

    function build() {
        clear();
        const rows = !model ? 0 : rootIndex === undefined ? model.rowCount() : model.rowCount(rootIndex);
        for (let row = 0; row < rows; ++row)
            addRow(row, read(indexOf(row)));
        align();
    }

    function addRow(row: int, entry) {
        if (entry.kind === "separator") {
            addItem(separator.createObject(contentItem));
        } else if (entry.kind === "title") {
            addItem(caption.createObject(contentItem, {text: entry.text}));
        } else if (entry.kind === "submenu") {
            // The type can't name itself.
            const menu = Qt.createComponent(Qt.resolvedUrl("ModelMenu.qml")).createObject(control, {
                model: control.model,
                rootIndex: indexOf(row),
                rootMenu: control.rootMenu,
                title: entry.text
            });
            menu.build();
            added = entry;
            addMenu(menu);
            itemAt(row).entry = entry;
        } else {
            const item = textItem.createObject(contentItem, {entry: entry});
            addItem(item);
            item.triggered.connect(() => control.rootMenu.choose(control.indexOf(row)));
        }
    }

    // The columns are those that any of the rows needs.
    function align() {
        const items = [];
        for (let row = 0; row < count; ++row) {
            if (itemAt(row) instanceof ModelMenuItem)
                items.push(itemAt(row));
        }
        const marks = items.some(item => item.entry.checkable);
        // A picture that isn't found leaves its room empty.
        const pictures = items.some(item => item.entry.named);
        for (const item of items) {
            item.markColumn = marks;
            item.pictureColumn = pictures;
        }
    }

    // Shows what the model says now of the rows that there are.
    function refresh() {
        for (let row = 0; row < count; ++row) {
            if (itemAt(row) instanceof ModelMenuItem)
                itemAt(row).entry = read(indexOf(row));
            menuAt(row)?.refresh();
        }
        align();
    }

    function choose(index) {
        chosen = index;
        later.restart();
    }

    // Not while the item's own handlers are at work: the command may rebuild the menu, or run for long.
    function runChosen() {
        const index = chosen;
        chosen = undefined;
        if (index === undefined)
            return;
        run(index);
        triggered(index);
    }

    // Indexes of the former rows mean nothing now. Rows may still come and go in a page's own onAboutToShow.
    function follow() {
        chosen = undefined;
        if (visible)
            close();
        else if (built)
            build();
    }

    // A label that gets its mnemonic later doesn't draw it.
    // qmllint disable unqualified
    delegate: ModelMenuItem {
        entry: control.added
    }
    // qmllint enable unqualified

    onModelChanged: follow()
    onAboutToShow: {
        if (rootMenu !== control)
            return;
        build();
        built = true;
    }
    onClosed: built = false

    Connections {
        target: control.rootMenu === control ? control.model ?? null : null

        function onModelReset() {
            control.follow();
        }
        function onRowsInserted() {
            control.follow();
        }
        function onRowsRemoved() {
            control.follow();
        }
        function onDataChanged() {
            if (control.built)
                changed.restart();
        }
    }

    // Many rows may change at once.
    Timer {
        id: changed

        interval: 0
        onTriggered: control.refresh()
    }
    Timer {
        id: later

        interval: 0
        onTriggered: control.runChosen()
    }
    Component {
        id: textItem

        ModelMenuItem {}
    }
    Component {
        id: separator

        MenuSeparator {}
    }
    Component {
        id: caption

        Label {
            leftPadding: Metrics.padding
            rightPadding: Metrics.padding
            topPadding: 4
            bottomPadding: 2
            font.bold: true
            font.pointSize: Metrics.smallFontSize
            color: Colors.textSecondary
        }
    }
}
