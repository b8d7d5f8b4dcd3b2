import QtQuick

// A button that shows a colour, with a picture in it where the colour is not one of a row.
ButtonBase {
    id: swatch

    property color color
    property string icon

    Rectangle {
        anchors.fill: parent
        anchors.margins: DefFontSizePico
        radius: Theme.corner
        color: swatch.color

        Rectangle {
            anchors.centerIn: parent
            width: Theme.smallIconSize
            height: width
            radius: Theme.corner
            visible: swatch.icon !== ""
            color: Theme.button

            Icon {
                anchors.centerIn: parent
                icon: swatch.icon
                size: DefFontSizeNormal
            }
        }
    }
}
