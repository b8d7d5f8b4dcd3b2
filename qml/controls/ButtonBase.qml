import QtQuick

// What all buttons have in common: clicks, keys, tool tip, accessibility, and the ground they are drawn on.
// Clicking leaves the focus where it is; Tab comes here, and Space or Enter press the button.
FocusScope {
    id: button

    property string toolTip: ""
    property string label: toolTip
    property bool toggled: false
    property bool active: true
    // Sends more clicks while the mouse button is held.
    property bool autoRepeat: false
    property bool tabStop: true
    // Whether the toggled state shows in the ground; off where a control has a sign of its own for it.
    property bool framed: true
    property int role: Accessible.Button
    property color ground: toggled && framed ? (hovered ? Theme.toggledHovered : Theme.toggled)
                                   : (hovered ? Theme.buttonHovered : Theme.button)
    default property alias content: face.data
    readonly property bool hovered: hover.hovered && body.enabled
    readonly property bool pressed: mouse.pressed && mouse.containsMouse
    readonly property bool usable: body.enabled

    signal clicked()
    signal rightClicked()

    implicitWidth: Theme.controlHeight
    implicitHeight: Theme.controlHeight

    onActiveFocusChanged: {
        if (button.activeFocus)
            ToolTips.show(button)
        else
            ToolTips.hide(button)
    }

    function press() {
        ToolTips.hide(button)
        FocusHome.commitEditing()
        button.clicked()
    }

    HoverTip { id: hover }

    Item {
        id: body

        anchors.fill: parent
        focus: true
        activeFocusOnTab: button.tabStop
        enabled: button.active
        Accessible.role: button.role
        Accessible.name: button.label
        Accessible.description: button.toolTip
        Accessible.focusable: true
        Accessible.checkable: button.role === Accessible.CheckBox || button.role === Accessible.RadioButton
        Accessible.checked: button.toggled
        Accessible.pressed: button.pressed
        Accessible.onPressAction: button.press()
        Accessible.onToggleAction: button.press()

        Keys.onPressed: event => {
            if (!body.isPressKey(event.key))
                return
            event.accepted = true
            if (!event.isAutoRepeat || button.autoRepeat)
                button.press()
        }
        // Else the release of Space would mean something to the window's own keys.
        Keys.onReleased: event => { event.accepted = body.isPressKey(event.key) }

        function isPressKey(key) {
            return key === Qt.Key_Space || key === Qt.Key_Return || key === Qt.Key_Enter
        }

        Rectangle {
            anchors.fill: parent
            radius: Theme.corner
            color: button.pressed ? Theme.buttonPressed : button.ground
            border.width: button.framed && button.toggled ? 1 : 0
            border.color: Theme.toggledLine
            opacity: button.framed && button.toggled ? face.opacity : 1
        }

        Item {
            id: face

            anchors.fill: parent
            opacity: body.enabled ? 1 : Theme.disabledOpacity
        }

        FocusRing { visible: body.activeFocus }

        MouseArea {
            id: mouse

            anchors.fill: parent
            acceptedButtons: Qt.LeftButton | Qt.RightButton
            onPressed: {
                again.hasFired = false
                ToolTips.hide(button)
            }
            onClicked: event => {
                if (event.button === Qt.RightButton)
                    button.rightClicked()
                else if (!again.hasFired)
                    button.press()
            }
        }

        Timer {
            id: again

            property bool hasFired: false

            interval: hasFired ? 60 : 400
            repeat: true
            running: button.autoRepeat && button.pressed && (mouse.pressedButtons & Qt.LeftButton)
            onTriggered: {
                again.hasFired = true
                button.press()
            }
        }
    }
}
