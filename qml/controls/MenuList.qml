import QtQuick

// A list of commands. Each entry of `model` is {text, icon, shortcut, action, active}; all but the text may be
// missing. A choice calls the entry's action and then sends chosen().
FocusScope {
    id: menu

    property var model: []
    property int currentIndex: -1
    property string label: qsTr("Menu")
    readonly property real widest: widestRow(metrics.font)

    signal chosen(int index)
    signal dismissed()

    implicitWidth: widest
    implicitHeight: Math.min(model.length * Theme.controlHeight,
                             Window.window ? Window.height - DefFontSizeNormal_x2 : DefFontSizeNormal_x22)
    activeFocusOnTab: true
    Accessible.role: Accessible.PopupMenu
    Accessible.name: label
    Accessible.focusable: true

    onActiveFocusChanged: {
        if (menu.activeFocus && menu.currentIndex < 0)
            menu.step(1)
    }

    Keys.onUpPressed: menu.step(-1)
    Keys.onDownPressed: menu.step(1)
    Keys.onReturnPressed: menu.choose(menu.currentIndex)
    Keys.onEnterPressed: menu.choose(menu.currentIndex)
    Keys.onSpacePressed: menu.choose(menu.currentIndex)
    Keys.onEscapePressed: event => {
        event.accepted = false
        menu.dismissed()
    }
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_Home || event.key === Qt.Key_End
        if (event.key === Qt.Key_Home)
            menu.currentIndex = menu.next(-1, 1)
        else if (event.key === Qt.Key_End)
            menu.currentIndex = menu.next(menu.model.length, -1)
    }

    function isActive(index) {
        return index >= 0 && index < menu.model.length && menu.model[index].active !== false
    }

    // The next usable entry in that direction, around the ends; -1 when there is none.
    function next(from, direction) {
        const count = menu.model.length
        for (let i = 1; i <= count; ++i) {
            const index = (((from + i * direction) % count) + count) % count
            if (menu.isActive(index))
                return index
        }
        return -1
    }

    function step(direction) {
        menu.currentIndex = menu.next(menu.currentIndex < 0 && direction < 0 ? 0 : menu.currentIndex, direction)
        view.positionViewAtIndex(menu.currentIndex, ListView.Contain)
    }

    function choose(index) {
        if (!menu.isActive(index))
            return
        const action = menu.model[index].action
        if (action)
            action()
        menu.chosen(index)
    }

    // The font only says when to measure anew.
    function widestRow(font) {
        let width = DefFontSizeNormal_x8
        for (let i = 0; i < menu.model.length; ++i) {
            const shortcut = menu.model[i].shortcut || ""
            width = Math.max(width, metrics.advanceWidth(menu.model[i].text) + DefFontSizeNormal_x2
                             + metrics.advanceWidth(shortcut))
        }
        return Math.ceil(width + Theme.smallIconSize + 4 * Theme.padding)
    }

    FontMetrics {
        id: metrics

        font.pixelSize: DefFontSizeNormal
    }

    Rectangle {
        anchors.fill: parent
        radius: Theme.corner
        color: Theme.button
    }

    ListView {
        id: view

        anchors.fill: parent
        clip: interactive
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        model: menu.model
        delegate: MenuRow {
            required property int index
            required property var modelData

            width: view.width
            text: modelData.text
            icon: modelData.icon || ""
            shortcut: modelData.shortcut || ""
            active: modelData.active !== false
            current: index === menu.currentIndex
            onEntered: menu.currentIndex = index
            onClicked: menu.choose(index)
        }
    }

    FocusRing { visible: menu.activeFocus }
}
