import QtQuick

// Scrolls to what the keyboard has come to.
Item {
    id: reveal

    required property Flickable flickable
    required property Scrollbar bar
    // What holds the content; its coordinates are those of the scrolling.
    required property Item holder

    visible: false

    function show(item) {
        if (!item || !bar.needed || !isInside(item))
            return
        const top = item.mapToItem(holder, 0, 0).y
        if (top < flickable.contentY)
            bar.scrollTo(top)
        else if (top + item.height > flickable.contentY + flickable.height)
            bar.scrollTo(top + item.height - flickable.height)
    }

    function isInside(item) {
        for (let above = item; above; above = above.parent) {
            if (above === holder)
                return true
        }
        return false
    }

    Connections {
        target: reveal.Window.window
        function onActiveFocusItemChanged() { reveal.show(reveal.Window.window.activeFocusItem) }
    }
}
