pragma Singleton

import QtQuick

// Where the keyboard goes when a field has been left. The window's root sets `home` to the item that handles
// the key shortcuts; without one the focus stays where it is.
QtObject {
    id: keeper

    property Item home: null
    // The text field that the user is typing in; it has a function commit().
    property Item editing: null

    function begin(field) {
        keeper.editing = field
    }

    function end(field) {
        if (keeper.editing === field)
            keeper.editing = null
    }

    // A click does not take the focus from a field, so what was typed there has to count before the click does.
    function commitEditing() {
        if (keeper.editing)
            keeper.editing.commit()
    }

    function goHome() {
        if (keeper.home)
            keeper.home.forceActiveFocus()
    }
}
