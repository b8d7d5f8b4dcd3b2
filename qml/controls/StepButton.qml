import QtQuick

// A plus or a minus beside a number; goes on while it is held. The keyboard steps in the field itself.
ButtonBase {
    id: button

    property bool plus: true
    readonly property int stroke: Math.max(1, Math.round(DefFontSizeNormal / 8))
    // Of the same parity as the stroke, so that the cross stands exactly in the middle.
    readonly property int armLength: 2 * DefFontSizeNano + stroke

    autoRepeat: true
    tabStop: false

    Rectangle {
        x: Math.floor((parent.width - width) / 2)
        y: Math.floor((parent.height - height) / 2)
        width: button.armLength
        height: button.stroke
        color: Theme.text
    }

    Rectangle {
        x: Math.floor((parent.width - width) / 2)
        y: Math.floor((parent.height - height) / 2)
        width: button.stroke
        height: button.armLength
        color: Theme.text
        visible: button.plus
    }
}
