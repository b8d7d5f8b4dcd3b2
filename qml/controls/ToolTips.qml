pragma Singleton

import QtQuick

// Knows the control whose tool tip is due. Controls report here and need not know their window; each window's
// ToolTip shows the text when the control is one of its own.
QtObject {
    id: tips

    // An item with a string property "toolTip".
    property Item target: null

    function show(item) {
        tips.target = item
    }

    function hide(item) {
        if (tips.target === item)
            tips.target = null
    }
}
