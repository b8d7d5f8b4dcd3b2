import QtQuick

// One preset: the size of the frame and the rate.
ButtonBase {
    id: cell

    // A map with "name", "fps", "framewidth" and "frameheight"; nothing is shown without one.
    required property var preset

    signal chosen()

    visible: preset !== undefined
    active: preset !== undefined
    tabStop: false
    label: preset ? preset.name + ", " + rate.text : ""
    toolTip: label
    onClicked: cell.chosen()

    Column {
        anchors.verticalCenter: parent.verticalCenter
        x: DefFontSizePico
        width: parent.width - 2 * x

        TextLabel {
            id: size

            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: DefFontSizeMicro
            text: cell.preset ? cell.preset.name : ""
            Accessible.ignored: true
        }

        TextLabel {
            id: rate

            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: DefFontSizeMicro
            small: true
            dim: true
            text: cell.preset ? qsTranslate("ProjectPresets", "%1 fps").arg(cell.preset.fps) : ""
            Accessible.ignored: true
        }
    }
}
