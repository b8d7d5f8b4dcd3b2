import QtQuick

// A square button with a picture.
ButtonBase {
    id: button

    property string icon: ""

    Icon {
        anchors.centerIn: parent
        icon: button.icon
        size: Math.min(button.width, button.height) - 2 * DefFontSizePico
    }
}
