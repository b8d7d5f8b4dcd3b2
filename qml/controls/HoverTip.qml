import QtQuick

// Put into a control that has a property "toolTip": asks for the tool tip while the pointer rests on it.
HoverHandler {
    id: hover

    onHoveredChanged: {
        if (hover.hovered)
            ToolTips.show(hover.parent)
        else
            ToolTips.hide(hover.parent)
    }
}
