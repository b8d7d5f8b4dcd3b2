import QtQuick

// Chooses an opaque colour by its hue, its strength and brightness, or its code. `color` belongs to the owner:
// chosen() only asks for another, at every step of a drag.
FocusScope {
    id: chooser

    property color color: "#000000"
    property bool active: true
    property string toolTip: ""
    // A grey has no hue; the last one stays so that the strip does not jump.
    property real hue: 0

    signal chosen(color value)

    implicitWidth: DefFontSizeNormal_x18
    implicitHeight: codeRow.y + codeRow.height

    onColorChanged: chooser.takeHue()
    Component.onCompleted: chooser.takeHue()

    function takeHue() {
        if (chooser.color.hsvHue >= 0)
            chooser.hue = chooser.color.hsvHue
    }

    function choose(hue, saturation, value) {
        chooser.hue = hue
        chooser.chosen(Qt.hsva(hue, saturation, value, 1))
    }

    ColorField {
        id: square

        width: parent.width
        height: DefFontSizeNormal_x8
        enabled: chooser.active
        label: qsTr("Saturation and brightness")
        toolTip: chooser.toolTip !== "" ? chooser.toolTip : label
        markX: Math.max(0, chooser.color.hsvSaturation)
        markY: 1 - chooser.color.hsvValue
        onMoved: (x, y) => chooser.choose(chooser.hue, x, 1 - y)

        Rectangle {
            anchors.fill: parent
            gradient: Gradient {
                orientation: Gradient.Horizontal
                GradientStop { position: 0; color: "#ffffff" }
                GradientStop { position: 1; color: Qt.hsva(chooser.hue, 1, 1, 1) }
            }
        }

        Rectangle {
            anchors.fill: parent
            gradient: Gradient {
                GradientStop { position: 0; color: "#00000000" }
                GradientStop { position: 1; color: "#ff000000" }
            }
        }
    }

    ColorField {
        id: strip

        y: square.height + Theme.spacing
        width: parent.width
        height: DefFontSizeNormal
        enabled: chooser.active
        twoWay: false
        label: qsTr("Hue")
        toolTip: label
        markX: chooser.hue
        onMoved: x => chooser.choose(Math.min(x, 0.999), chooser.color.hsvSaturation, chooser.color.hsvValue)

        Rectangle {
            anchors.fill: parent
            gradient: Gradient {
                orientation: Gradient.Horizontal
                GradientStop { position: 0; color: "#ff0000" }
                GradientStop { position: 1 / 6; color: "#ffff00" }
                GradientStop { position: 2 / 6; color: "#00ff00" }
                GradientStop { position: 3 / 6; color: "#00ffff" }
                GradientStop { position: 4 / 6; color: "#0000ff" }
                GradientStop { position: 5 / 6; color: "#ff00ff" }
                GradientStop { position: 1; color: "#ff0000" }
            }
        }
    }

    Item {
        id: codeRow

        y: strip.y + strip.height + Theme.spacing
        width: parent.width
        height: Theme.controlHeight

        Rectangle {
            width: height * 2
            height: parent.height
            radius: Theme.corner
            color: chooser.color
            border.width: 1
            border.color: Theme.line
        }

        TextPropertyInput {
            anchors.right: parent.right
            width: DefFontSizeNormal_x8
            active: chooser.active
            text: chooser.color.toString()
            toolTip: qsTr("Color code")
            onEdited: text => chooser.takeCode(text)
        }
    }

    // A code is three or six hex digits, with or without "#"; anything else changes nothing.
    function takeCode(text) {
        const code = text.trim().replace(/^#/, "")
        if (/^([0-9a-fA-F]{3}|[0-9a-fA-F]{6})$/.test(code))
            chooser.chosen("#" + code)
    }
}
