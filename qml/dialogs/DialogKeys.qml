import QtQuick

// Lets the keyboard into a dialog and keeps it there: Tab goes round its controls, or round those of a panel
// that one of them has opened, never to what lies behind.
Item {
    id: keys

    required property Item dialog
    // Handles the keys that no control of the dialog takes.
    readonly property list<Item> shortcuts: FocusHome.home ? [FocusHome.home] : []

    function isInside(item, box) {
        for (let above = item; above; above = above.parent) {
            if (above === box)
                return true;
        }
        return false;
    }

    // The item right below the window that holds the given one.
    function topmost(item) {
        while (item && item.parent && item.parent !== Window.contentItem)
            item = item.parent;
        return item;
    }

    function step(forward) {
        const active = Window.activeFocusItem;
        const inPanel = active && topmost(active) !== topmost(dialog);
        const box = inPanel ? topmost(active) : dialog;
        const start = isInside(active, box) ? active : dialog;
        const seen = [start];
        let item = start.nextItemInFocusChain(forward);
        while (item && !seen.includes(item)) {
            if (isInside(item, box)) {
                item.forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason);
                return;
            }
            seen.push(item);
            item = item.nextItemInFocusChain(forward);
        }
    }

    visible: false

    // Before any control can take the key: it would pass the focus on to the whole window.
    Shortcut {
        sequence: "Tab"
        autoRepeat: false
        onActivated: WebcamGlobal.tab()
    }

    Shortcut {
        sequence: "Shift+Tab"
        autoRepeat: false
        onActivated: keys.step(false)
    }

    Connections {
        target: WebcamGlobal

        function onTab() {
            keys.step(true);
        }
    }
}
